#include "platform/linux/atspi/AccessibilityBus.h"

#include "core/Log.h"
#include "platform/linux/atspi/Inquiry.h"
#include "platform/linux/atspi/WireTypes.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <atomic>

namespace platform {

namespace {

ObjectReference launcher() {
    return {QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus")};
}

QDBusMessage messageToLauncher(const QString& interface, const QString& member,
                               const QVariantList& arguments) {
    auto message = Request{launcher(), interface, member, arguments}.message();
    // The launcher is there to be started by the first who asks.
    message.setAutoStartService(true);
    return message;
}

QString unusedConnectionName() {
    static std::atomic<int> number = 0;
    return QStringLiteral("quillet-accessibility-%1").arg(++number);
}

} // namespace

AccessibilityBus::AccessibilityBus(QDBusConnection session)
    : session_(std::move(session))
    , connection_(QString())
    , launchers_(launcher().service, session_, QDBusServiceWatcher::WatchForRegistration) {
    QObject::connect(&launchers_, &QDBusServiceWatcher::serviceRegistered, this,
                     [this] { isSuperseded_ = true; });
}

AccessibilityBus::~AccessibilityBus() {
    if (!connection_.name().isEmpty()) {
        QDBusConnection::disconnectFromBus(connection_.name());
    }
}

bool AccessibilityBus::connect(std::chrono::milliseconds timeLimit) {
    if (isUpToDate()) {
        return true;
    }
    const auto reply = session_.call(
        messageToLauncher(QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"), {}),
        QDBus::Block, static_cast<int>(timeLimit.count()));
    const auto address = Inquiry::decode<QString>(reply);
    if (!address || address->isEmpty()) {
        return false;
    }
    isSuperseded_ = false;
    // With a guid in it, the address of each bus is unlike all others.
    if (isConnected() && *address == address_ && address->contains(u"guid=")) {
        return true;
    }
    if (!connection_.name().isEmpty()) {
        QDBusConnection::disconnectFromBus(connection_.name());
    }
    address_ = *address;
    connection_ = QDBusConnection::connectToBus(*address, unusedConnectionName());
    if (!isConnected()) {
        return false;
    }
    registerWireTypes();
    Q_EMIT connected();
    return true;
}

std::optional<bool> AccessibilityBus::isEnabled(std::chrono::milliseconds timeLimit) {
    const auto reply = session_.call(
        messageToLauncher(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                          {QStringLiteral("org.a11y.Status"), QStringLiteral("IsEnabled")}),
        QDBus::Block, static_cast<int>(timeLimit.count()));
    return Inquiry::decode<bool>(reply);
}

void AccessibilityBus::enable() {
    constexpr int timeLimit = 5000;
    const auto reply = session_.asyncCall(
        messageToLauncher(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"),
                          {QStringLiteral("org.a11y.Status"), QStringLiteral("IsEnabled"),
                           QVariant::fromValue(QDBusVariant(true))}),
        timeLimit);
    const auto* watcher = new QDBusPendingCallWatcher(reply, this);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this,
                     [](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         if (finished->isError()) {
                             core::log(QStringLiteral("Accessibility could not be switched on: ") +
                                       finished->error().message());
                         }
                     });
}

} // namespace platform
