#include "bar/TextFormat.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <set>
#include <vector>

using bar::HeadingFont;
using bar::HeadingWeight;
using bar::TextFormat;

TEST(TextFormat, IsDeclaredInTheOrderInWhichItIsListed) {
    QStringList titles;
    for (const TextFormat format : bar::allTextFormats) {
        titles << bar::rawValue(format);
    }
    EXPECT_EQ(titles.join(u','),
              QStringLiteral("Bold,Italic,Underline,Strikethrough,Monospaced,Heading,Link,"
                             "Bullet List,Dashed List,Numbered List,Checklist,Increase Indent,"
                             "Decrease Indent,Decrease Text Size,Increase Text Size,"
                             "Remove Formatting"));
    EXPECT_EQ(bar::allTextFormats[11], TextFormat::increaseIndent);
    EXPECT_EQ(bar::allTextFormats[13], TextFormat::decreaseTextSize);
}

TEST(TextFormat, IsFoundByItsExactTitleOnly) {
    for (const TextFormat format : bar::allTextFormats) {
        EXPECT_EQ(bar::textFormat(bar::rawValue(format)), format);
        EXPECT_EQ(bar::id(format), bar::rawValue(format));
    }
    const std::vector<QStringView> wrongTitles{
        u"", u"bold", u"Bold ", u"increase indent", u"BulletList", u"Check List", u"textformat"};
    for (const QStringView wrong : wrongTitles) {
        EXPECT_EQ(bar::textFormat(wrong), std::nullopt) << wrong.toString().toStdString();
    }
}

TEST(TextFormat, EveryButtonHasASymbolOfItsOwn) {
    std::set<QString> names;
    for (const TextFormat format : bar::allTextFormats) {
        names.insert(bar::symbolName(format));
    }
    EXPECT_EQ(names.size(), bar::allTextFormats.size());
    EXPECT_EQ(bar::symbolName(TextFormat::decreaseTextSize),
              QStringLiteral("textformat.size.smaller"));
    EXPECT_EQ(bar::symbolName(TextFormat::removeFormatting), QStringLiteral("textformat"));
}

TEST(HeadingLevels, AreOfferedFromTitleToBodyEachInItsFont) {
    struct Row {
        bar::HeadingLevel level;
        QStringView label;
        HeadingFont font;
    };
    const std::vector<Row> expected{
        {1, u"Title", {18, HeadingWeight::Bold}},
        {2, u"Heading", {15, HeadingWeight::Bold}},
        {3, u"Subheading", {13, HeadingWeight::Semibold}},
        {0, u"Body", {13, HeadingWeight::Regular}},
    };
    ASSERT_EQ(bar::headingChoices.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(bar::headingChoices[i].level, expected[i].level);
        EXPECT_EQ(bar::headingChoices[i].label, expected[i].label);
        EXPECT_EQ(bar::headingFont(expected[i].level), expected[i].font);
    }
    for (const bar::HeadingLevel other : {-1, 4, 100}) {
        EXPECT_EQ(bar::headingFont(other), bar::headingFont(0));
    }
}
