#include "platform/linux/PixelGeometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace platform {

namespace {

PixelScreen screenAt(PixelRect frame, double ratio = 1, bool primary = false) {
    return {frame, frame, ratio, primary};
}

void expectRect(const Rect& actual, const Rect& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-9);
    EXPECT_NEAR(actual.y, expected.y, 1e-9);
    EXPECT_NEAR(actual.width, expected.width, 1e-9);
    EXPECT_NEAR(actual.height, expected.height, 1e-9);
}

} // namespace

TEST(PixelGeometry, OneScreenFlipsTheVerticalAxisAndItsRatioScalesEverything) {
    const PixelGeometry plain({screenAt({0, 0, 1280, 800}, 1, true)});
    expectRect(plain.topLeftPoints({100, 50, 200, 20}), {100, 50, 200, 20});
    expectRect(plain.globalPoints({100, 50, 200, 20}), {100, 730, 200, 20});
    EXPECT_EQ(plain.globalPoint({0, 800}), (Point{0, 0}));
    EXPECT_EQ(plain.pixels({100, 730, 200, 20}), (PixelRect{100, 50, 200, 20}));

    const PixelGeometry dense({screenAt({0, 0, 2560, 1600}, 2, true)});
    expectRect(dense.globalPoints({201, 100, 50, 40}), {100.5, 730, 25, 20});
    EXPECT_EQ(dense.pixels({100.5, 730, 25, 20}), (PixelRect{201, 100, 50, 40}));
    // A ratio that is none counts as one.
    EXPECT_EQ(PixelGeometry({screenAt({0, 0, 100, 100}, 0, true)}).pixels({10, 80, 5, 10}),
              (PixelRect{10, 10, 5, 10}));
}

TEST(PixelGeometry, EachScreenKeepsItsCornerAndHasARatioOfItsOwn) {
    const PixelGeometry geometry(
        {screenAt({0, 0, 2000, 1000}, 2, true), screenAt({2000, 100, 1000, 800}, 1)});
    // On the second screen nothing is scaled; the height that flips is the primary screen's.
    expectRect(geometry.topLeftPoints({2100, 200, 300, 40}), {2100, 200, 300, 40});
    expectRect(geometry.globalPoints({2100, 200, 300, 40}), {2100, 260, 300, 40});
    EXPECT_EQ(geometry.pixels({2100, 260, 300, 40}), (PixelRect{2100, 200, 300, 40}));
    // The first pixel of the second screen is its own, not the end of the first.
    EXPECT_EQ(geometry.screenNearest({2000, 100}), &geometry.screens()[1]);
    EXPECT_EQ(geometry.screenNearest({1999, 100}), &geometry.screens()[0]);
    EXPECT_EQ(geometry.screenNearest({9000, -50}), &geometry.screens()[1]);
}

TEST(PixelGeometry, NumbersThatAreNoneAndHugeOnesStayWithinX) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const PixelGeometry geometry({screenAt({0, 0, 1280, 800}, 2, true)});
    EXPECT_EQ(geometry.pixels({nan, nan, nan, nan}), (PixelRect{0, 800, 0, 0}));
    EXPECT_EQ(geometry.pixels({infinite, -infinite, infinite, infinite}),
              (PixelRect{32767, 800, 32767, 32767}));
    EXPECT_EQ(geometry.pixels({1e300, 0, -5, 10}), (PixelRect{32767, 780, 0, 20}));
    constexpr int farRight = std::numeric_limits<int>::max();
    expectRect(geometry.topLeftPoints({farRight, 0, farRight, 2}),
               {farRight / 2.0, 0, farRight / 2.0, 1});
}

} // namespace platform
