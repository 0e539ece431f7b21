#include "PrivateBus.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>
#include <gtest/gtest.h>

#include <csignal>

namespace fakes {

namespace {
constexpr int limitMilliseconds = 5000;
}

PrivateBus::PrivateBus() {
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"),
                   QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
    while (!daemon_.canReadLine()) {
        if (!daemon_.waitForReadyRead(limitMilliseconds)) {
            ADD_FAILURE() << "dbus-daemon does not start: " << daemon_.errorString().toStdString();
            return;
        }
    }
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
}

PrivateBus::~PrivateBus() {
    for (const QString& name : std::as_const(connections_)) {
        QDBusConnection::disconnectFromBus(name);
    }
    daemon_.kill();
    daemon_.waitForFinished(limitMilliseconds);
}

void PrivateBus::setPaused(bool paused) {
    kill(static_cast<pid_t>(daemon_.processId()), paused ? SIGSTOP : SIGCONT);
}

QDBusConnection PrivateBus::connect() {
    static int count = 0;
    const QString name = QStringLiteral("private-bus-%1").arg(++count);
    connections_.push_back(name);
    return QDBusConnection::connectToBus(address_, name);
}

void PrivateBus::disconnect(const QDBusConnection& connection) {
    connections_.removeOne(connection.name());
    QDBusConnection::disconnectFromBus(connection.name());
}

bool waitUntil(const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < limitMilliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
    return condition();
}

} // namespace fakes
