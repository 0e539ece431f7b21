#pragma once

#include <QDBusConnection>
#include <QProcess>

#include <functional>

namespace fakes {

/// A session bus of the test's own, ended with this object.
class PrivateBus {
public:
    /// A bus that cannot be started fails the test and leaves connections that are not connected.
    PrivateBus();
    ~PrivateBus();

    /// A further connection to this bus; closed with this object at the latest.
    QDBusConnection connect();
    void disconnect(const QDBusConnection& connection);

    /// A paused bus takes messages and passes none on.
    void setPaused(bool paused);

    /// For programs that are to use this bus.
    const QString& address() const { return address_; }

private:
    QProcess daemon_;
    QString address_;
    QStringList connections_;
};

/// Lets the event loop run until `condition` holds, five seconds at most; answers whether it holds.
bool waitUntil(const std::function<bool()>& condition);

} // namespace fakes
