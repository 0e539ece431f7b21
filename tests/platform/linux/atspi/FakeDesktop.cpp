#include "platform/linux/atspi/FakeDesktop.h"

#include <QDBusVariant>
#include <QFile>
#include <QMutexLocker>

#include <csignal>
#include <stdexcept>

namespace fakes {

namespace {

QString connectionName() {
    static std::atomic<int> number = 0;
    return QStringLiteral("fake-desktop-%1").arg(++number);
}

/// Whoever asks for a name that nobody owns gets an error: nothing is started.
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
    if (!file.open(QIODevice::WriteOnly)) {
        throw std::runtime_error("no place for the bus");
    }
    file.write(QString::fromLatin1(configuration).arg(folder_.path()).toUtf8());
    file.close();
    daemon_.setStandardErrorFile(QProcess::nullDevice());
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                   QStringLiteral("--config-file=") + file.fileName()});
    while (!daemon_.canReadLine()) {
        if (!daemon_.waitForReadyRead(5000)) {
            throw std::runtime_error("no bus");
        }
    }
    address_ = QString::fromUtf8(daemon_.readLine().trimmed());
}

PrivateBus::~PrivateBus() {
    daemon_.kill();
    daemon_.waitForFinished();
}

QDBusConnection PrivateBus::connect() const {
    return QDBusConnection::connectToBus(address_, connectionName());
}

void PrivateBus::setPaused(bool paused) {
    kill(static_cast<pid_t>(daemon_.processId()), paused ? SIGSTOP : SIGCONT);
}

/// Says where the accessibility bus is, and whether accessibility is on.
class FakeDesktop::Launcher final : public QDBusVirtualObject {
public:
    Launcher(const PrivateBus& bus, QThread& server)
        : connection_(bus.connect()) {
        connection_.registerVirtualObject(QStringLiteral("/org/a11y/bus"), this);
        moveToThread(&server);
        connection_.registerService(QStringLiteral("org.a11y.Bus"));
    }
    ~Launcher() override {
        connection_.unregisterObject(QStringLiteral("/org/a11y/bus"));
        QDBusConnection::disconnectFromBus(connection_.name());
    }

    std::atomic<bool> enabled = true;

    void setAddress(const QString& address) {
        const QMutexLocker locker(&mutex_);
        address_ = address;
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const QMutexLocker locker(&mutex_);
        if (message.member() == u"GetAddress") {
            return connection.send(message.createReply(address_));
        }
        if (message.member() == u"Set" && message.arguments().at(1).toString() == u"IsEnabled") {
            enabled = message.arguments().at(2).value<QDBusVariant>().variant().toBool();
            return connection.send(message.createReply());
        }
        return connection.send(
            message.createReply(QVariant::fromValue(QDBusVariant(enabled.load()))));
    }

private:
    QDBusConnection connection_;
    QMutex mutex_;
    QString address_;
};

/// Knows the applications.
class FakeDesktop::Registry final : public QDBusVirtualObject {
public:
    Registry(const PrivateBus& bus, QThread& server)
        : connection_(bus.connect()) {
        connection_.registerVirtualObject(QStringLiteral("/org/a11y/atspi"), this,
                                          QDBusConnection::SubPath);
        moveToThread(&server);
        connection_.registerService(QStringLiteral("org.a11y.atspi.Registry"));
    }
    ~Registry() override {
        connection_.unregisterObject(QStringLiteral("/org/a11y/atspi"),
                                     QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(connection_.name());
    }

    void add(const QString& service) {
        const QMutexLocker locker(&mutex_);
        applications_.push_back(platform::ObjectReference::root(service));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const QMutexLocker locker(&mutex_);
        return connection.send(message.member() == u"GetChildren"
                                   ? message.createReply(QVariant::fromValue(applications_))
                                   : message.createReply());
    }

private:
    QDBusConnection connection_;
    QMutex mutex_;
    QList<platform::ObjectReference> applications_;
};

FakeDesktop::FakeDesktop()
    : session_(sessionBus_.connect()) {
    platform::registerWireTypes();
    server_.start();
    launcher_ = std::make_unique<Launcher>(sessionBus_, server_);
    restartAccessibilityBus();
}

FakeDesktop::~FakeDesktop() {
    server_.quit();
    server_.wait();
    QDBusConnection::disconnectFromBus(session_.name());
}

FakeApplication& FakeDesktop::addApplication() {
    applications_.push_back(
        std::make_unique<FakeApplication>(accessibilityBus_->address(), server_));
    registry_->add(applications_.back()->service());
    return *applications_.back();
}

void FakeDesktop::stopAccessibilityBus() {
    launcher_->setAddress(QString());
    // Nobody may be answering while these go.
    server_.quit();
    server_.wait();
    applications_.clear();
    registry_.reset();
    accessibilityBus_.reset();
    server_.start();
}

void FakeDesktop::restartAccessibilityBus() {
    stopAccessibilityBus();
    accessibilityBus_ = std::make_unique<PrivateBus>();
    registry_ = std::make_unique<Registry>(*accessibilityBus_, server_);
    launcher_->setAddress(accessibilityBus_->address());
}

void FakeDesktop::setEnabled(bool enabled) {
    launcher_->enabled = enabled;
}

bool FakeDesktop::isEnabled() const {
    return launcher_->enabled;
}

} // namespace fakes
