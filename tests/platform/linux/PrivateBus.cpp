#include "PrivateBus.h"

#include <QFile>
#include <gtest/gtest.h>

#include <csignal>

namespace fakes {

namespace {

constexpr int limitMilliseconds = 5000;

constexpr auto configuration = R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus() {
    QFile file(folder_.filePath(QStringLiteral("bus.conf")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QString::fromLatin1(configuration).arg(folder_.path()).toUtf8());
    file.close();
    daemon_.setStandardErrorFile(QProcess::nullDevice());
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                   QStringLiteral("--config-file=") + file.fileName()});
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

} // namespace fakes
