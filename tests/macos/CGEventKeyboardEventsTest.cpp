#include "platform/macos/CGEventKeyboardEvents.h"

#include "macos/fakes/c/EventsFake.h"
#include "platform/macos/ScreenRecording.h"

#include <gtest/gtest.h>

using platform::EventSourceState;
using platform::EventTap;
using platform::KeyDirection;

namespace {

constexpr CGEventFlags capsLock = 0x10000;

class CGEventKeyboardEventsTest : public testing::Test {
protected:
    CGEventKeyboardEventsTest() { events = {}; }
    ~CGEventKeyboardEventsTest() override { EXPECT_EQ(appleFake::liveObjects(), 0); }

    appleFake::Events& events = appleFake::events();
    platform::CGEventKeyboardEvents keyboard;
};

TEST_F(CGEventKeyboardEventsTest, FlagsReplaceThoseOfTheSourceOnTheEventTheyAreSetOnOnly) {
    events.flagsOfSource = capsLock;
    {
        const auto source = keyboard.createSource(EventSourceState::HidSystem);
        const auto down = keyboard.createKeyEvent(source.get(), 65535, KeyDirection::Down);
        down->setFlags(platform::modifierFlags::command);
        const auto up = keyboard.createKeyEvent(source.get(), 65535, KeyDirection::Up);
        EXPECT_TRUE(events.posted.empty());
        keyboard.post(*down, EventTap::Hid);
        keyboard.post(*up, EventTap::Hid);
    }
    EXPECT_EQ(events.sources, std::vector{kCGEventSourceStateHIDSystemState});
    EXPECT_EQ(events.posted, (std::vector<appleFake::PostedEvent>{
                                 {kCGHIDEventTap, 65535, true, kCGEventFlagMaskCommand},
                                 {kCGHIDEventTap, 65535, false, capsLock}}));
}

TEST_F(CGEventKeyboardEventsTest, WhatCannotBeMadeIsNull) {
    events.sourceCanBeMade = false;
    EXPECT_EQ(keyboard.createSource(EventSourceState::HidSystem), nullptr);
    EXPECT_NE(keyboard.createKeyEvent(nullptr, 11, KeyDirection::Down), nullptr);
    events.keyUpCanBeMade = false;
    EXPECT_EQ(keyboard.createKeyEvent(nullptr, 11, KeyDirection::Up), nullptr);
    EXPECT_TRUE(events.posted.empty());
}

TEST_F(CGEventKeyboardEventsTest, LookingAtTheScreenRecordingPermissionNeverAsksTheUser) {
    EXPECT_FALSE(platform::screenRecording::isPermitted());
    EXPECT_EQ(events.screenRecordingRequests, 0);
    EXPECT_FALSE(platform::screenRecording::request());
    EXPECT_EQ(events.screenRecordingRequests, 1);
    events.screenRecordingIsPermitted = true;
    EXPECT_TRUE(platform::screenRecording::isPermitted());
}

} // namespace
