#include "platform/linux/freedesktop/BusUserNotifications.h"

#include "core/Log.h"
#include "core/ProgramIdentity.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>
#include <QVariantMap>

#include <utility>

namespace platform {

namespace {

constexpr int answerLimitMilliseconds = 5000;

QString service() {
    return QStringLiteral("org.freedesktop.Notifications");
}

QString path() {
    return QStringLiteral("/org/freedesktop/Notifications");
}

QDBusMessage callOf(const QString& method) {
    return QDBusMessage::createMethodCall(service(), path(), service(), method);
}

} // namespace

BusUserNotifications::BusUserNotifications(const QDBusConnection& bus)
    : bus_(bus) {}

BusUserNotifications::~BusUserNotifications() = default;

core::Registration BusUserNotifications::show(const UserNotification& notification,
                                              std::function<void()> activated) {
    listen();
    QDBusMessage notify = callOf(QStringLiteral("Notify"));
    const QVariantMap hints{{QStringLiteral("desktop-entry"), core::programIdentifier()}};
    constexpr int asLongAsTheDesktopLikes = -1;
    notify << QStringLiteral("Corvane Quillet") << std::exchange(identifier_, 0)
           << core::programIdentifier() << notification.summary << notification.body
           << QStringList{QStringLiteral("default"), notification.action} << hints
           << asLongAsTheDesktopLikes;
    activated_ = std::move(activated);
    const unsigned number = ++notification_;
    auto* answer =
        new QDBusPendingCallWatcher(bus_.asyncCall(notify, answerLimitMilliseconds), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, number](QDBusPendingCallWatcher* call) {
                call->deleteLater();
                const QDBusPendingReply<uint> reply = *call;
                if (!reply.isValid()) {
                    core::log(u"this desktop shows no notifications");
                } else if (number == notification_ && activated_) {
                    identifier_ = reply.value();
                } else {
                    close(reply.value());
                }
            });
    return core::Registration([self = QPointer(this), number] {
        if (self) {
            self->withdraw(number);
        }
    });
}

void BusUserNotifications::listen() {
    if (!std::exchange(isListening_, true)) {
        bus_.connect(service(), path(), service(), QStringLiteral("ActionInvoked"), this,
                     SLOT(obey(uint, QString)));
        bus_.connect(service(), path(), service(), QStringLiteral("NotificationClosed"), this,
                     SLOT(forget(uint)));
    }
}

void BusUserNotifications::withdraw(unsigned notification) {
    if (notification == notification_) {
        activated_ = nullptr;
        if (identifier_ != 0) {
            close(std::exchange(identifier_, 0));
        }
    }
}

void BusUserNotifications::close(uint identifier) {
    QDBusMessage call = callOf(QStringLiteral("CloseNotification"));
    call << identifier;
    // Nobody waits for the answer; a service that is gone shows nothing either.
    call.setAutoStartService(false);
    bus_.asyncCall(call, answerLimitMilliseconds);
}

void BusUserNotifications::obey(uint identifier, const QString& action) {
    if (identifier == identifier_ && action == u"default") {
        // It may show the next one.
        if (const auto activated = activated_) {
            activated();
        }
    }
}

void BusUserNotifications::forget(uint identifier) {
    if (identifier == identifier_) {
        identifier_ = 0;
    }
}

} // namespace platform
