#include "platform/linux/freedesktop/StatusNotifierHost.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace platform {

namespace {

constexpr int answerLimitMilliseconds = 2000;

QString watcherName() {
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

QString watcherPath() {
    return QStringLiteral("/StatusNotifierWatcher");
}

} // namespace

StatusNotifierHost::StatusNotifierHost(const QDBusConnection& bus)
    : bus_(bus) {
    if (!bus_.isConnected()) {
        return;
    }
    watcherService_ = new QDBusServiceWatcher(watcherName(), bus_,
                                              QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcherService_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                setThere(false);
                if (newOwner.isEmpty()) {
                    ++question_;
                } else {
                    ask();
                }
            });
    // From whomever they come: for a named sender the library would ask the bus for its owner,
    // without a limit of ours.
    for (const QString& signal : {QStringLiteral("StatusNotifierHostRegistered"),
                                  QStringLiteral("StatusNotifierHostUnregistered")}) {
        bus_.connect(QString(), watcherPath(), watcherName(), signal, this, SLOT(ask()));
    }
    ask();
}

StatusNotifierHost::~StatusNotifierHost() = default;

core::Registration StatusNotifierHost::observe(std::function<void()> handler) {
    return changed_.add(std::move(handler));
}

void StatusNotifierHost::ask() {
    QDBusMessage get = QDBusMessage::createMethodCall(
        watcherName(), watcherPath(), QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    get << watcherName() << QStringLiteral("IsStatusNotifierHostRegistered");
    // Some sessions would start a watcher for the asking; that decision is the desktop's.
    get.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(get, answerLimitMilliseconds), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, question = ++question_](QDBusPendingCallWatcher* call) {
                call->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *call;
                if (question == question_) {
                    setThere(reply.isValid() && reply.value().variant() == QVariant(true));
                }
            });
}

void StatusNotifierHost::setThere(bool there) {
    if (there_ != there) {
        there_ = there;
        changed_.notify();
    }
}

} // namespace platform
