#include "platform/linux/freedesktop/StatusNotifierHost.h"

#include "PrivateBus.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <memory>

using platform::StatusNotifierHost;

namespace {

/// A watcher as the desktops have it, on a connection of its own.
class Watcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    Watcher(fakes::PrivateBus& bus, bool hostRegistered)
        : hasHost_(hostRegistered)
        , bus_(bus)
        , connection_(bus.connect()) {
        connection_.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                   QDBusConnection::ExportAllContents);
        connection_.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }
    ~Watcher() override { bus_.disconnect(connection_); }

    bool hasHost() const {
        ++questions;
        return hasHost_;
    }
    void registerHost() {
        hasHost_ = true;
        Q_EMIT StatusNotifierHostRegistered();
    }
    void unregisterHost() {
        hasHost_ = false;
        Q_EMIT StatusNotifierHostUnregistered();
    }

    mutable int questions = 0;

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    bool hasHost_;
    fakes::PrivateBus& bus_;
    QDBusConnection connection_;
};

class StatusNotifierHostTest : public testing::Test {
protected:
    fakes::PrivateBus bus;

    testing::AssertionResult becomes(const StatusNotifierHost& host, bool there) {
        return fakes::waitUntil([&] { return host.isThere() == there; })
                   ? testing::AssertionSuccess()
                   : testing::AssertionFailure() << "still " << host.isThere();
    }
};

} // namespace

TEST_F(StatusNotifierHostTest, AHostThatIsThereIsFoundWithoutWaitingForTheAnswer) {
    const Watcher watcher(bus, true);
    StatusNotifierHost host(bus.connect());
    EXPECT_FALSE(host.isThere());
    int changes = 0;
    const auto observer = host.observe([&] { ++changes; });
    EXPECT_TRUE(becomes(host, true));
    EXPECT_EQ(changes, 1);
}

TEST_F(StatusNotifierHostTest, AWatcherAndAHostMayComeLateAndGoAgain) {
    StatusNotifierHost host(bus.connect());
    auto watcher = std::make_unique<Watcher>(bus, false);
    ASSERT_TRUE(fakes::waitUntil([&] { return watcher->questions > 0; }));
    EXPECT_FALSE(host.isThere());
    watcher->registerHost();
    EXPECT_TRUE(becomes(host, true));
    watcher->unregisterHost();
    EXPECT_TRUE(becomes(host, false));
    watcher->registerHost();
    EXPECT_TRUE(becomes(host, true));
    watcher.reset();
    EXPECT_TRUE(becomes(host, false));
    watcher = std::make_unique<Watcher>(bus, true);
    EXPECT_TRUE(becomes(host, true));
}

TEST_F(StatusNotifierHostTest, ABusThatStandsStillHoldsNobodyUp) {
    const auto connection = bus.connect();
    bus.setPaused(true);
    QElapsedTimer timer;
    timer.start();
    const StatusNotifierHost host(connection);
    EXPECT_LT(timer.elapsed(), 5000);
    bus.setPaused(false);
}

TEST_F(StatusNotifierHostTest, WithoutABusThereIsNoHost) {
    const StatusNotifierHost host(QDBusConnection(QStringLiteral("no such connection")));
    EXPECT_FALSE(host.isThere());
}

#include "StatusNotifierHostTest.moc"
