#include "platform/macos/MacScreenCapture.h"

#include "macos/cocoa/AppKitTest.h"
#include "macos/fakes/cocoa/ScreenshotsFake.h"
#include "platform/macos/ScreenRecording.h"
#include "platform/macos/Screenshots.h"
#include "platform/macos/WindowListImage.h"

using cocoaFake::Answers;
using platform::Rect;

namespace {

bool permitted = true;
int requests = 0;

} // namespace

namespace platform {

bool screenRecording::isPermitted() {
    return permitted;
}

bool screenRecording::request() {
    ++requests;
    return false;
}

QImage windowListImageBelow(std::uint32_t) {
    ADD_FAILURE() << "the older call";
    return {};
}

} // namespace platform

namespace {

class MacScreenCaptureTest : public AppKitTest {
protected:
    MacScreenCaptureTest() {
        permitted = true;
        requests = 0;
        screen = {};
        // The second display stands left of the first one and is twice as sharp.
        screen.displays = {{{0, 0, 100, 50}, 1, Qt::red}, {{-80, 0, 80, 50}, 2, Qt::green}};
        screen.windows = {{5, {10, 10, 20, 20}},
                          {7, {20, 10, 40, 30}},
                          {8, {-10, 20, 30, 10}},
                          {9, {70, 30, 60, 40}}};
    }

    cocoaFake::Screenshots& screen = cocoaFake::screenshots();
    platform::MacScreenCapture capture;
};

TEST_F(MacScreenCaptureTest, ShowsTheWindowsBelowOnAllDisplaysCutToWhatTheyCover) {
    for (const Answers answers : {Answers::Now, Answers::FromAnotherThread}) {
        screen.answers = answers;
        screen.captures.clear();
        const QImage picture = capture.pictureBelow(7);
        EXPECT_EQ(screen.captures,
                  (std::vector<cocoaFake::Capture>{{{8, 9}, {100, 50}, false, false},
                                                   {{8, 9}, {160, 100}, false, false}}));
        // From -10 to 100, the edge of the display, and from 20 to 50, at two pixels a point.
        ASSERT_EQ(picture.size(), QSize(220, 60));
        EXPECT_EQ(picture.pixelColor(19, 0), QColor(Qt::green));
        EXPECT_EQ(picture.pixelColor(20, 59), QColor(Qt::red));
        EXPECT_EQ(picture.pixelColor(219, 59), QColor(Qt::red));
    }
    EXPECT_FALSE(capture.pictureBelow(0).isNull());
    EXPECT_EQ(screen.captures.back().windows, (std::vector<std::uint32_t>{5, 7, 8, 9}));
}

TEST_F(MacScreenCaptureTest, IsNullWithoutPermissionWindowOrAnswer) {
    permitted = false;
    EXPECT_TRUE(capture.pictureBelow(7).isNull());
    EXPECT_EQ(requests, 1);
    EXPECT_TRUE(screen.captures.empty());

    permitted = true;
    EXPECT_TRUE(capture.pictureBelow(1234).isNull()); // no such window
    EXPECT_TRUE(capture.pictureBelow(9).isNull());    // nothing below it
    screen.refuses = true;
    EXPECT_TRUE(capture.pictureBelow(7).isNull());
    screen.refuses = false;
    screen.answers = Answers::Never;
    EXPECT_FALSE(platform::screenshots::below(7, std::chrono::milliseconds(20)));
    EXPECT_EQ(screen.unanswered, 1);
    EXPECT_EQ(requests, 1);
}

TEST_F(MacScreenCaptureTest, TheKeyWindowsNumberIsNoughtWhenNoneHasTheKeyboard) {
    EXPECT_EQ(capture.keyWindowNumber(), 0);
    appKit.keyWindowNumber = 4711;
    EXPECT_EQ(capture.keyWindowNumber(), 4711);
}

} // namespace
