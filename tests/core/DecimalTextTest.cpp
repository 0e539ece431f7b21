#include "core/DecimalText.h"

#include <gtest/gtest.h>

using core::decimalText;

TEST(DecimalText, RoundsTheExactValueAndTiesToTheEvenDigit) {
    EXPECT_EQ(decimalText(0.3, 1), u"0.3");
    EXPECT_EQ(decimalText(0.25, 1), u"0.2");
    EXPECT_EQ(decimalText(0.75, 1), u"0.8");
    EXPECT_EQ(decimalText(0.35, 1), u"0.3"); // a little less than it looks
    EXPECT_EQ(decimalText(0.5, 0), u"0");
    EXPECT_EQ(decimalText(1.5, 0), u"2");
    EXPECT_EQ(decimalText(-0.04, 1), u"-0.0");
}

