#include "bar/TextFormat.h"

#include <gtest/gtest.h>

using bar::TextFormat;

TEST(TextFormat, IsFoundByItsExactTitleOnly) {
    for (const TextFormat format : bar::allTextFormats) {
        EXPECT_EQ(bar::textFormat(bar::rawValue(format)), format);
        EXPECT_EQ(bar::id(format), bar::rawValue(format));
    }
    for (const auto* wrong : {u"", u"bold", u"Bold ", u"increase indent", u"BulletList"}) {
        EXPECT_EQ(bar::textFormat(wrong), std::nullopt);
    }
    EXPECT_EQ(bar::allTextFormats[11], TextFormat::increaseIndent);
    EXPECT_EQ(bar::allTextFormats[13], TextFormat::decreaseTextSize);
}

TEST(HeadingLevels, ThatDoNotExistHaveTheFontOfBodyText) {
    for (const bar::HeadingLevel other : {-1, 4, 100}) {
        EXPECT_EQ(bar::headingFont(other), bar::headingFont(0));
    }
}
