#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <chrono>
#include <optional>

namespace platform {

/// The connection to the bus on which applications can be read. Main thread only.
class AccessibilityBus final : public QObject {
    Q_OBJECT

public:
    explicit AccessibilityBus(QDBusConnection session);
    ~AccessibilityBus() override;

    bool isConnected() const { return connection_.isConnected(); }

    /// Connected, and no other bus has been started since: a launcher that crashes leaves its bus
    /// behind, and whatever starts after it is on the bus of the next launcher.
    bool isUpToDate() const { return isConnected() && !isSuperseded_; }

    /// Connects unless up to date. The time is that for the session's answer, which may have to
    /// start the accessibility bus first; where it is too short, a later call succeeds.
    bool connect(std::chrono::milliseconds timeLimit);

    QDBusConnection connection() const { return connection_; }

    /// Whether accessibility is switched on for the desktop; empty when the session has nobody to
    /// answer.
    std::optional<bool> isEnabled(std::chrono::milliseconds timeLimit);

    /// Switches accessibility on for the desktop, for good. Does not wait.
    void enable();

Q_SIGNALS:
    /// A new connection stands; nothing is subscribed on it.
    void connected();

private:
    QDBusConnection session_;
    QDBusConnection connection_;
    QString address_;
    QDBusServiceWatcher launchers_;
    bool isSuperseded_ = false;
};

} // namespace platform
