#include "platform/linux/freedesktop/TrayArrival.h"

#include "core/Observers.h"
#include "fakes/VirtualRunLoop.h"

#include <gtest/gtest.h>

namespace {

class FakeTray final : public platform::TrayHost {
public:
    explicit FakeTray(bool there)
        : there_(there) {}

    bool isThere() const override { return there_; }
    core::Registration observe(std::function<void()> handler) override {
        return changed_.add(std::move(handler));
    }
    void set(bool there) {
        there_ = there;
        changed_.notify();
    }

private:
    bool there_;
    core::Observers<> changed_;
};

struct Desktop {
    Desktop(bool statusNotifierThere, bool xembedThere)
        : statusNotifier(statusNotifierThere)
        , xembed(xembedThere) {}

    fakes::VirtualRunLoop runLoop;
    FakeTray statusNotifier;
    FakeTray xembed;
    int icons = 0;
    platform::TrayArrival arrival{runLoop, statusNotifier, xembed, [this] { ++icons; }};
};

} // namespace

TEST(TrayArrival, SaysOnceThatThereIsNoTray) {
    testing::internal::CaptureStdout();
    Desktop without(false, false);
    without.runLoop.advance(9.9);
    Desktop with(true, false);
    with.runLoop.advance(60);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    testing::internal::CaptureStdout();
    without.runLoop.advance(60);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Quillet: no tray to show the menu in; the icon appears once there is one\n");
}

TEST(TrayArrival, TheOlderTrayGetsTheIconAfterAWhileUnlessAHostComesOrItGoesMeanwhile) {
    const auto iconsAfter = [](const std::function<void(Desktop&)>& meanwhile) {
        Desktop desktop(false, false);
        desktop.runLoop.advance(10);
        desktop.xembed.set(true);
        desktop.runLoop.advance(1.9);
        EXPECT_EQ(desktop.icons, 0);
        meanwhile(desktop);
        return desktop.icons;
    };
    EXPECT_EQ(iconsAfter([](Desktop& desktop) { desktop.runLoop.advance(0.1); }), 1);
    EXPECT_EQ(iconsAfter([](Desktop& desktop) { desktop.statusNotifier.set(true); }), 1);
    EXPECT_EQ(iconsAfter([](Desktop& desktop) {
                  desktop.xembed.set(false);
                  desktop.runLoop.advance(10);
              }),
              0);
}

