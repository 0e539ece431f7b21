#include "platform/linux/atspi/FakeDesktop.h"

#include <QDBusVariant>

namespace fakes {

FakeDesktop::FakeDesktop() {
    platform::registerWireTypes();
    application.join(bus_.connect(), server_);
    server_.start();
    launcher_.registerService(QStringLiteral("org.a11y.Bus"));
    launcher_.registerService(QStringLiteral("org.a11y.atspi.Registry"));
}

FakeDesktop::~FakeDesktop() {
    // Nobody may be answering while the rest goes.
    server_.quit();
    server_.wait();
}

QDBusMessage FakeDesktop::answer(const QDBusMessage& call) {
    const QString question = call.member();
    if (question == u"GetAddress") {
        return call.createReply(bus_.address());
    }
    if (question == u"Get") {
        return call.createReply(QVariant::fromValue(QDBusVariant(isEnabled.load())));
    }
    if (question == u"Set" && call.arguments().at(1).toString() == u"IsEnabled") {
        isEnabled = call.arguments().at(2).value<QDBusVariant>().variant().toBool();
    }
    if (question == u"GetChildren") {
        return call.createReply(QVariant::fromValue(
            QList{application.reference(platform::ObjectReference::root({}).path)}));
    }
    return call.createReply();
}

} // namespace fakes
