#include "platform/Geometry.h"

#include <gtest/gtest.h>

#include <limits>

using platform::Rect;

TEST(Rect, IntersectsWhatItOverlapsHoweverThinAndNotWhatItOnlyTouches) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const Rect screen{0, 0, 100, 100};
    // A caret has no width, an empty place neither.
    for (const Rect& inside : {Rect{90, 90, 20, 20}, Rect{-1000, -1000, 3000, 3000},
                               Rect{50, 50, 0, 20}, Rect{50, 50, 0, 0}, Rect{0, 50, 0, 20}}) {
        EXPECT_TRUE(inside.intersects(screen)) << inside.x << ' ' << inside.width;
    }
    // Among them a caret on the seam to the next screen, which is that screen's.
    for (const Rect& outside : {Rect{100, 0, 20, 20}, Rect{0, -20, 20, 20}, Rect{150, 50, 0, 20},
                                Rect{100, 50, 0, 20}, Rect{nan, 0, 10, 10}, Rect{0, 0, 10, nan}}) {
        EXPECT_FALSE(outside.intersects(screen)) << outside.x << ' ' << outside.width;
    }
    EXPECT_FALSE((Rect{nan, nan, nan, nan}.isZero()));
}
