#include "platform/linux/freedesktop/StatusNotifierHost.h"

#include "PrivateBus.h"
#include "Responder.h"
#include "fakes/Eventually.h"

#include <QDBusVariant>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using fakes::eventually;
using platform::StatusNotifierHost;

namespace {

/// A watcher as the desktops have it, on a connection of its own.
class Watcher {
public:
    Watcher(fakes::PrivateBus& bus, bool hasHost)
        : bus_(bus)
        , hasHost_(hasHost) {
        connection_.registerService(name_);
    }
    ~Watcher() { bus_.disconnect(connection_); }

    void setHost(bool registered) {
        hasHost_ = registered;
        connection_.send(QDBusMessage::createSignal(
            u"/StatusNotifierWatcher"_s, name_,
            registered ? u"StatusNotifierHostRegistered"_s : u"StatusNotifierHostUnregistered"_s));
    }

    int questions = 0;

private:
    const QString name_ = u"org.kde.StatusNotifierWatcher"_s;
    fakes::PrivateBus& bus_;
    bool hasHost_;
    QDBusConnection connection_ = bus_.connect();
    fakes::Responder responder_{connection_, [this](const QDBusMessage& question) {
                                    ++questions;
                                    return question.createReply(
                                        QVariant::fromValue(QDBusVariant(hasHost_)));
                                }};
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
