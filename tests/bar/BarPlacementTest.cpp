#include "bar/BarPlacement.h"

#include "fakes/FakePlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using platform::Point;
using platform::Rect;
using platform::Screen;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// A panel of 40 points at the bottom and one of 25 at the top.
constexpr Screen screen{{0, 0, 1920, 1080}, {0, 40, 1920, 1015}};

TEST(BarPlacement, StaysNearTheSelectionInsideTheVisibleFrame) {
    struct Case {
        const char* where;
        Rect selection;
        Point origin;
    };
    // The bar's bottom edge can be at most 1055 - 8 - 44 = 1003.
    for (const auto& [where, selection, origin] :
         {Case{"in the middle", {400, 500, 90, 18}, {400, 526}},
          Case{"as thin as a caret", {400, 500, 0, 18}, {400, 526}},
          Case{"touching the top margin", {400, 977, 90, 18}, {400, 1003}},
          Case{"just too high", {400, 977.5, 90, 18}, {400, 925.5}},
          Case{"under the top panel", {400, 1060, 90, 18}, {400, 1003}},
          Case{"at the right edge", {1900, 500, 20, 18}, {1252, 526}},
          Case{"at the left edge", {0, 500, 20, 18}, {8, 526}},
          Case{"filling the screen", {0, 0, 1920, 1080}, {8, 48}},
          Case{"under the bottom panel", {400, 0, 90, 18}, {400, 48}},
          Case{"no numbers", {notANumber, notANumber, notANumber, notANumber}, {1252, 1003}},
          Case{"beyond 16 bits", {1e9, -1e9, 5, 5}, {1252, 48}}}) {
        EXPECT_EQ(bar::barOrigin(selection, screen), origin) << where;
    }
}

TEST(BarPlacementOddScreens, WithoutAScreenTheBarStandsAboveTheSelection) {
    EXPECT_EQ(bar::barOrigin({-5000, 9000, 20, 10}, std::nullopt), (Point{-5000, 9018}));
}

TEST(ScreenShowing, IsTheFirstInTheSystemsOrderThatTheSelectionTouchesElseTheMainOne) {
    const Screen right{{1920, 0, 1280, 1024}, {1920, 0, 1280, 1024}};
    fakes::FakeScreens screens;
    screens.all = {right, screen};
    screens.main = screen;
    const auto shownOn = [&](Rect rect) { return platform::screenShowing(screens, rect)->frame; };
    EXPECT_EQ(shownOn({1900, 500, 40, 18}), right.frame);
    EXPECT_EQ(shownOn({1880, 500, 40, 18}), screen.frame);
    EXPECT_EQ(shownOn({2500, 500, 0, 18}), right.frame);
    EXPECT_EQ(shownOn({9000, 500, 40, 18}), screen.frame);
    screens.all.clear();
    screens.main.reset();
    EXPECT_FALSE(platform::screenShowing(screens, {0, 0, 10, 10}));
}

} // namespace
