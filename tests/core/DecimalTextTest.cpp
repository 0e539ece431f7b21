#include "core/DecimalText.h"

#include <gtest/gtest.h>

#include <limits>

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

TEST(DecimalText, WritesAnyNumberAtAll) {
    EXPECT_EQ(decimalText(-std::numeric_limits<double>::max(), 20).size(), 1 + 309 + 1 + 20);
    EXPECT_EQ(decimalText(std::numeric_limits<double>::infinity(), 1), u"inf");
    EXPECT_EQ(decimalText(std::numeric_limits<double>::quiet_NaN(), 1), u"nan");
}
