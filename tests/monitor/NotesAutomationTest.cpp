#include "monitor/NotesAutomation.h"

#include "fakes/FakePlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

using bar::TextFormat;
using monitor::NotesAutomation;
using monitor::Shortcut;
using platform::Point;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStdout;

namespace {

class NotesAutomationTest : public testing::Test {
protected:
    NotesAutomationTest() { NotesAutomation::targetApplication = target(); }
    ~NotesAutomationTest() override {
        NotesAutomation::targetApplication.reset();
        NotesAutomation::colorPanelPosition = {};
    }

    static platform::RunningApplication target() {
        platform::RunningApplication application;
        application.processIdentifier = 42;
        return application;
    }

    /// Opens the colours with the position set and answers where the panel went.
    Point placed(Point wanted) {
        NotesAutomation::colorPanelPosition = wanted;
        NotesAutomation::showColorPicker();
        platform.runLoop.advance(0.3);
        return platform.colorPanel.origins.back();
    }

    fakes::FakePlatform platform;
};

using NotesAutomationDeathTest = NotesAutomationTest;

} // namespace

TEST_F(NotesAutomationTest, PostsTwoEventsATenthOfASecondAfterAskingTheTargetToTheFront) {
    NotesAutomation::simulateKeyboardShortcut(11, 0x100000);
    EXPECT_THAT(platform.record, ElementsAre("activate 42", "key down 11", "key up 11"));
    EXPECT_THAT(platform.runLoop.sleeps, ElementsAre(0.1));
    EXPECT_THAT(platform.keyboardEvents.sources,
                ElementsAre(platform::EventSourceState::HidSystem));
    const auto& posted = platform.keyboardEvents.posted;
    EXPECT_EQ(posted.at(0).flags, 0x100000U);
    EXPECT_EQ(posted.at(1).flags, std::nullopt) << "the key-up keeps its source's flags";
    EXPECT_EQ(posted.at(0).time, 0.1);
    EXPECT_EQ(posted.at(1).tap, platform::EventTap::Hid);
}

TEST_F(NotesAutomationTest, NeverPostsALoneKeyDown) {
    platform.keyboardEvents.keyUpCanBeMade = false;
    NotesAutomation::simulateKeyboardShortcut(11, 0x100000);
    platform.keyboardEvents.keyUpCanBeMade = true;
    platform.keyboardEvents.keyDownCanBeMade = false;
    NotesAutomation::simulateKeyboardShortcut(11, 0x100000);
    EXPECT_TRUE(platform.keyboardEvents.posted.empty());
}

TEST_F(NotesAutomationTest, WithoutATargetOneLineIsLoggedAndNothingElseHappens) {
    NotesAutomation::targetApplication.reset();
    CaptureStdout();
    NotesAutomation::simulateKeyboardShortcut(11, 0x100000);
    EXPECT_EQ(GetCapturedStdout(),
              "Quillet: simulateKeyboardShortcut skipped \u2014 no targetApplication set\n");
    CaptureStdout();
    NotesAutomation::showColorPicker();
    EXPECT_EQ(GetCapturedStdout(), "Quillet: No target application\n");
    platform.runLoop.advance(1);
    EXPECT_TRUE(platform.record.empty());
    EXPECT_TRUE(platform.runLoop.sleeps.empty());
    EXPECT_TRUE(platform.colorPanel.modes.empty());
}

TEST_F(NotesAutomationTest, OpensTheTargetsColoursAndPlacesTheOwnPanelLater) {
    NotesAutomation::showColorPicker();
    EXPECT_THAT(platform.record,
                ElementsAre("activate 42", "activate 42", "key down 8", "key up 8"));
    EXPECT_THAT(platform.runLoop.sleeps, ElementsAre(0.05, 0.1));
    EXPECT_EQ(platform.keyboardEvents.posted.at(0).flags, 0x120000U);
    platform.runLoop.advance(0.29);
    EXPECT_TRUE(platform.colorPanel.modes.empty());
    platform.runLoop.advance(0.01);
    EXPECT_THAT(platform.runLoop.now(), DoubleNear(0.45, 1e-9));
    EXPECT_THAT(platform.colorPanel.modes, ElementsAre(platform::ColorPanelMode::ColorList));
    EXPECT_TRUE(platform.colorPanel.origins.empty()) << "no position is set";
}

TEST_F(NotesAutomationTest, ThePanelStaysInsideTheVisibleFrame) {
    platform.screens.main = platform::Screen{{0, 0, 1920, 1080}, {0, 40, 1900, 1000}};
    platform.colorPanel.panelFrame = {7, 7, 300, 400};
    const std::vector<std::pair<Point, Point>> rows{
        {{100, 100}, {100, 100}},   // room enough
        {{1600, 640}, {1600, 640}}, // touches the right and the top edge
        {{1601, 641}, {1291, 630}}, // beyond both: left of the point, below the top
        {{0, 100}, {0, 100}},       // one zero alone is a position
        {{100, -5}, {100, 50}},     // below the bottom
    };
    for (const auto& [wanted, expected] : rows) {
        EXPECT_EQ(placed(wanted), expected) << wanted.x << ", " << wanted.y;
    }
    platform.colorPanel.panelFrame.height = 2000;
    EXPECT_EQ(placed({100, 100}), (Point{100, 50})) << "taller than the screen: up from the bottom";
    platform.screens.main.reset();
    EXPECT_EQ(placed({5000, 5000}), (Point{5000, 5000})) << "no screen: as it is";
}
