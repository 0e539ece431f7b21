#include "platform/linux/freedesktop/StatusNotifierHost.h"

#include "PrivateBus.h"
#include "fakes/Eventually.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using fakes::eventually;
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
        connection_.registerObject(u"/StatusNotifierWatcher"_s, this,
                                   QDBusConnection::ExportAllContents);
        connection_.registerService(u"org.kde.StatusNotifierWatcher"_s);
    }
    ~Watcher() override { bus_.disconnect(connection_); }

    bool hasHost() const {
        ++questions;
        return hasHost_;
    }
    void setHost(bool registered) {
        hasHost_ = registered;
        registered ? StatusNotifierHostRegistered() : StatusNotifierHostUnregistered();
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

} // namespace

TEST(StatusNotifierHost, AWatcherAndAHostMayComeLateAndGoAgain) {
    fakes::PrivateBus bus;
    StatusNotifierHost host(bus.connect());
    int changes = 0;
    const auto observer = host.observe([&] { ++changes; });
    const auto becomes = [&](bool there) {
        return eventually([&] { return host.isThere() == there; });
    };
    auto watcher = std::make_unique<Watcher>(bus, false);
    ASSERT_TRUE(eventually([&] { return watcher->questions > 0; }));
    EXPECT_FALSE(host.isThere());
    for (const bool there : {true, false, true}) {
        watcher->setHost(there);
        EXPECT_TRUE(becomes(there)) << there;
    }
    watcher.reset();
    EXPECT_TRUE(becomes(false));
    watcher = std::make_unique<Watcher>(bus, true);
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(changes, 5);
}

TEST(StatusNotifierHost, ABusThatStandsStillHoldsNobodyUp) {
    fakes::PrivateBus bus;
    const auto connection = bus.connect();
    bus.setPaused(true);
    QElapsedTimer timer;
    timer.start();
    const StatusNotifierHost host(connection);
    EXPECT_LT(timer.elapsed(), 5000);
    bus.setPaused(false);
}

TEST(StatusNotifierHost, WithoutABusThereIsNoHost) {
    const StatusNotifierHost host(QDBusConnection(u"no such connection"_s));
    EXPECT_FALSE(host.isThere());
}

#include "StatusNotifierHostTest.moc"
