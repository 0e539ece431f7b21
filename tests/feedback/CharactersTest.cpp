#include "feedback/Characters.h"

#include <QString>
#include <gtest/gtest.h>

namespace feedback {

TEST(Characters, AreWhatAReaderCounts) {
    EXPECT_EQ(firstCharacters(u"abc", 2), u"ab");
    EXPECT_EQ(firstCharacters(u"abc", 3), u"abc");
    EXPECT_EQ(firstCharacters(u"abc", 200), u"abc");
    EXPECT_EQ(firstCharacters(u"", 2), u"");
    EXPECT_EQ(firstCharacters(u"e\u0301e", 1), u"e\u0301");
    EXPECT_EQ(firstCharacters(u"\r\n\n", 1), u"\r\n");
    EXPECT_EQ(firstCharacters(u"👨‍👩‍👧‍👦x", 1), u"👨‍👩‍👧‍👦");
    EXPECT_EQ(firstCharacters(u"😀🇩🇪🇫🇷", 2), u"😀🇩🇪");
    EXPECT_EQ(firstCharacters(u"각x", 1), u"각");
}

} // namespace feedback
