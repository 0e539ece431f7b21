#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

namespace fakes {

/// A message bus of the test's own, ended with this object. Whoever asks for a name that nobody
/// owns gets an error: nothing is started.
class PrivateBus {
public:
    /// A bus that cannot be started fails the test and leaves connections that are not connected.
    PrivateBus();
    ~PrivateBus();

    /// A further connection to this bus; closed with this object at the latest.
    QDBusConnection connect();

    /// A paused bus takes messages and passes none on.
    void setPaused(bool paused);

    /// For programs that are to use this bus.
    const QString& address() const { return address_; }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
    QStringList connections_;
};

} // namespace fakes
