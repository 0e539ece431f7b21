#include "platform/macos/NSEventMonitors.h"

#include "macos/cocoa/AppKitTest.h"

#include <memory>

namespace {

class NSEventMonitorsTest : public AppKitTest {
protected:
    platform::NSEventKeyMonitor keys;
    platform::NSEventPointerMonitor pointer;
};

TEST_F(NSEventMonitorsTest, KeyPressesArriveOnceEachWithAllTheirFlagsWhileRegistered) {
    std::vector<std::pair<platform::KeyCode, std::uint64_t>> seen;
    auto registration = keys.addKeyDownMonitor([&](const platform::KeyDownEvent& event) {
        seen.emplace_back(event.keyCode, event.modifierFlags);
    });
    EXPECT_EQ(cocoaFake::globalMonitors(), std::vector<unsigned long long>{0x400});
    endTurn();

    cocoaFake::keyDownElsewhere({3, 0x180100, false});
    cocoaFake::keyDownElsewhere({3, 0x180100, true});
    cocoaFake::keyDownElsewhere({65535, 0, false});
    cocoaFake::pressElsewhere();
    EXPECT_EQ(seen, (std::vector<std::pair<platform::KeyCode, std::uint64_t>>{{3, 0x180100},
                                                                              {65535, 0}}));
    registration.reset();
    cocoaFake::keyDownElsewhere({3, 0, false});
    EXPECT_EQ(seen.size(), 2U);
}

TEST_F(NSEventMonitorsTest, PressesAreSeenInEveryApplicationAndSwallowedInNone) {
    std::vector<platform::Point> seen;
    auto registration = pointer.addDismissMonitor([&](const platform::DismissEvent& event) {
        EXPECT_EQ(event.reason, platform::DismissReason::PointerPressed);
        seen.push_back(event.location);
    });
    // The left, the right and every other button.
    const std::vector<unsigned long long> presses{0x200000A};
    EXPECT_EQ(cocoaFake::globalMonitors(), presses);
    EXPECT_EQ(cocoaFake::localMonitors(), presses);
    endTurn();

    appKit.mouseLocation = {10, 20.5};
    cocoaFake::pressElsewhere();
    appKit.mouseLocation = {-3, 4};
    EXPECT_EQ(cocoaFake::pressHere(), 0);
    cocoaFake::keyDownElsewhere({3, 0, false});
    EXPECT_EQ(seen, (std::vector<platform::Point>{{10, 20.5}, {-3, 4}}));
}

TEST_F(NSEventMonitorsTest, AHandlerMayEndItsOwnMonitor) {
    core::Registration registration;
    const auto alive = std::make_shared<int>(1);
    int calls = 0;
    registration = pointer.addDismissMonitor([&registration, &calls, kept = alive](const auto&) {
        registration.reset();
        calls += *kept;
    });
    cocoaFake::pressElsewhere();
    cocoaFake::pressHere();
    EXPECT_EQ(calls, 1);
    endTurn();
    EXPECT_EQ(alive.use_count(), 1);
}

TEST_F(NSEventMonitorsTest, WhatTheSystemRefusesIsNoRegistration) {
    appKit.refusesMonitors = true;
    EXPECT_FALSE(keys.addKeyDownMonitor([](const auto&) {}));
    EXPECT_FALSE(pointer.addDismissMonitor([](const auto&) {}));
}

} // namespace
