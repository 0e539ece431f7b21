#pragma once

#include "platform/UserNotifications.h"

#include <QDBusConnection>
#include <QObject>

class QDBusPendingCallWatcher;

namespace platform {

/// Notifications of the desktop's own service, org.freedesktop.Notifications, one at a time. Never
/// waits for it; where there is no such service nothing is shown.
class BusUserNotifications final : public QObject, public UserNotifications {
    Q_OBJECT

public:
    explicit BusUserNotifications(const QDBusConnection& bus);
    ~BusUserNotifications() override;

    core::Registration show(const UserNotification& notification,
                            std::function<void()> activated) override;

private Q_SLOTS:
    void obey(uint identifier, const QString& action);
    void forget(uint identifier);

private:
    void listen();
    void withdraw(unsigned notification);
    void close(uint identifier);

    QDBusConnection bus_;
    bool isListening_ = false;
    /// Counts what was shown; only the last one is still there.
    unsigned notification_ = 0;
    /// The service's own number for it; 0 until known, and once it is gone.
    uint identifier_ = 0;
    std::function<void()> activated_;
};

} // namespace platform
