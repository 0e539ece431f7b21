#include "platform/Geometry.h"

#include <gtest/gtest.h>

#include <limits>

using platform::Rect;

TEST(Rect, IntersectsWhatItOverlapsAndNotWhatItOnlyTouches) {
    const Rect screen{0, 0, 100, 100};
    EXPECT_TRUE((Rect{90, 90, 20, 20}.intersects(screen)));
    EXPECT_TRUE((Rect{-1000, -1000, 3000, 3000}.intersects(screen)));
    EXPECT_FALSE((Rect{100, 0, 20, 20}.intersects(screen)));
    EXPECT_FALSE((Rect{0, -20, 20, 20}.intersects(screen)));
}

TEST(Rect, ThatIsAsThinAsACaretStillFindsItsScreen) {
    const Rect left{0, 0, 100, 100};
    EXPECT_TRUE((Rect{50, 50, 0, 20}.intersects(left)));
    EXPECT_TRUE((Rect{50, 50, 0, 0}.intersects(left)));
    EXPECT_FALSE((Rect{150, 50, 0, 20}.intersects(left)));
}

TEST(Rect, OfNumbersThatAreNoneIntersectsNothing) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE((Rect{nan, 0, 10, 10}.intersects(Rect{0, 0, 100, 100})));
    EXPECT_FALSE((Rect{0, 0, 10, nan}.intersects(Rect{0, 0, 100, 100})));
    EXPECT_FALSE((Rect{nan, nan, nan, nan}.isZero()));
}
