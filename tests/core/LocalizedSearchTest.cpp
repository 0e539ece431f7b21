#include "core/LocalizedSearch.h"

#include <gtest/gtest.h>

using core::localizedCaseInsensitiveContains;

namespace {
const QLocale english(QLocale::English);
const QLocale turkish(QLocale::Turkish);
} // namespace

TEST(LocalizedSearch, IgnoresCaseAndSpellingOfTheSameCharacter) {
    EXPECT_TRUE(localizedCaseInsensitiveContains(u"Calendar", u"CAL", english));
    EXPECT_TRUE(localizedCaseInsensitiveContains(u"ΟΔΟΣ", u"οδος", english));
    EXPECT_TRUE(localizedCaseInsensitiveContains(u"Cafe\u0301", u"FÉ", english));
    EXPECT_FALSE(localizedCaseInsensitiveContains(u"Calendar", u"calc", english));
}

TEST(LocalizedSearch, TellsTheTurkishLettersApartInTurkishOnly) {
    EXPECT_TRUE(localizedCaseInsensitiveContains(u"Files I", u"i", english));
    EXPECT_TRUE(localizedCaseInsensitiveContains(u"IRMAK", u"ırmak", turkish));
    EXPECT_TRUE(localizedCaseInsensitiveContains(u"İzmir", u"izmir", turkish));
    EXPECT_FALSE(localizedCaseInsensitiveContains(u"IRMAK", u"irmak", turkish));
    EXPECT_FALSE(localizedCaseInsensitiveContains(u"IRMAK", u"ırmak", english));
}

TEST(LocalizedSearch, MatchesWholeCharactersOnly) {
    EXPECT_FALSE(localizedCaseInsensitiveContains(u"Éclair", u"e", english));
    EXPECT_FALSE(localizedCaseInsensitiveContains(u"x\u0302y", u"x", english));
    EXPECT_TRUE(localizedCaseInsensitiveContains(u"x\u0302yx", u"x", english));
    EXPECT_FALSE(localizedCaseInsensitiveContains(u"anything", u"", english));
    EXPECT_TRUE(localizedCaseInsensitiveContains(u"two words", u" ", english));
}
