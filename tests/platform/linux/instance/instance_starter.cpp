// One start of the program, reduced to its claim: instance_starter NUMBER
// The one that is the program ends once it was told of NUMBER further starts.

#include "platform/ProgramInstance.h"

#include <QCoreApplication>

#include <cstdio>

using platform::ProgramInstance;

int main(int argc, char** argv) {
    const auto instance = platform::makeProgramInstance();
    switch (instance->claim(platform::InstanceRequest::Kind::Activate)) {
    case ProgramInstance::Claim::First:
        break;
    case ProgramInstance::Claim::HandedOver:
        std::puts("handed over");
        return 0;
    case ProgramInstance::Claim::Unanswered:
        return 1;
    }
    const QCoreApplication application(argc, argv);
    int missing = QCoreApplication::arguments().value(1).toInt();
    const auto handler = instance->setRequestHandler([&](const platform::InstanceRequest&) {
        if (--missing == 0) {
            std::puts("was told nine times");
            QCoreApplication::quit();
        }
    });
    return QCoreApplication::exec();
}
