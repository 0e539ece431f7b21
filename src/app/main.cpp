#include "app/CorvaneQuilletApp.h"
#include "core/Log.h"
#include "platform/Platform.h"
#include "settings/AppSettingsManager.h"

#include <QApplication>

#include <cstdlib>
#include <utility>

using platform::ProgramInstance;

int main(int argc, char** argv) {
    auto instance = platform::makeProgramInstance();
    switch (instance->claim()) {
    case ProgramInstance::Claim::First:
        break;
    case ProgramInstance::Claim::HandedOver:
        return EXIT_SUCCESS;
    case ProgramInstance::Claim::Unanswered:
        return EXIT_FAILURE;
    }
    if (const auto obstacle = platform::prepareProcess()) {
        core::log(*obstacle);
        return EXIT_FAILURE;
    }
    QApplication::setApplicationName(QStringLiteral("Corvane Quillet"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.corvane.Quillet"));
    const QApplication application(argc, argv);

    const std::unique_ptr<platform::Platform> system = platform::makePlatform(std::move(instance));
    const platform::CurrentPlatform current(*system);
    return app::CorvaneQuilletApp(
               std::make_unique<app::AppDelegate>(*system, settings::AppSettingsManager::shared()))
        .run();
}
