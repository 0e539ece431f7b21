#include "platform/macos/AppKitScreens.h"

#include "macos/cocoa/AppKitTest.h"
#include "platform/macos/AppKitColorPanel.h"

using platform::Rect;

namespace {

class AppKitScreensTest : public AppKitTest {};

TEST_F(AppKitScreensTest, GivesFramesAsTheSystemCountsThem) {
    platform::AppKitScreens screens;
    EXPECT_TRUE(screens.screens().empty());
    EXPECT_FALSE(screens.mainScreen());

    appKit.screens = {{{0, 0, 1440, 900}, {0, 70, 1440, 805}},
                      {{-1920, 180.5, 1920, 1080}, {-1920, 180.5, 1920, 1055}}};
    appKit.mainScreen = 1;
    appKit.mouseLocation = {-12.25, 1200};
    const auto all = screens.screens();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].visibleFrame, (Rect{0, 70, 1440, 805}));
    EXPECT_EQ(all[1].frame, (Rect{-1920, 180.5, 1920, 1080}));
    EXPECT_EQ(screens.mainScreen()->visibleFrame, (Rect{-1920, 180.5, 1920, 1055}));
    EXPECT_EQ(screens.pointerLocation(), (platform::Point{-12.25, 1200}));
}

TEST_F(AppKitScreensTest, MovesTheSharedColourPanelAndShowsItsLists) {
    appKit.colorPanelFrame = {1, 2, 228, 320};
    platform::AppKitColorPanel panel;
    panel.setMode(platform::ColorPanelMode::ColorList);
    panel.setFrameOrigin({600.5, -40});
    EXPECT_EQ(appKit.colorPanelMode, 5);
    EXPECT_EQ(panel.frame(), (Rect{600.5, -40, 228, 320}));
}

} // namespace
