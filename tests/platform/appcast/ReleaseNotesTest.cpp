#include "platform/appcast/ReleaseNotes.h"

#include <gtest/gtest.h>

#include <ctime>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

TEST(ReleaseNotes, are_the_words_of_the_markup) {
    const struct {
        const char* html;
        const char* text;
    } cases[] = {
        {"<h2>New</h2>\n<ul>\n  <li>One &amp; "
         "<b>two</b></li><li><p>Three</p></li>\n</ul><p>End</p>",
         "New\n\n• One & two\n• Three\n\nEnd"},
        {"a<br>b<br/>c<div>d</div>e", "a\nb\nc\nd\ne"},
        {"&Auml;&#8364;&#x1F600;&nbsp;&bogus; &; &#0; &#xD800; R&D",
         "Ä€😀\u00a0&bogus; &; &#0; &#xD800; R&D"},
        {"1 < 2 > 0 <3", "1 < 2 > 0 <3"},
        {"a<script>alert('x')</script><style>p{}</style><!-- <b>no</b> -->b", "ab"},
        {"<img src='file:///etc/passwd'><a href='javascript:x'>link</a>", "link"},
        {"<table><tr><td>a</td><td>b</td></tr><tr><td>c</td></tr></table>", "a b\nc"},
        {"a<b unclosed", "a"},
        {"a<!-- unclosed", "a"},
        {"a\u202eb\u200bc\x07"
         "d",
         "abcd"},
        {"", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(releaseNotesText(QString::fromUtf8(c.html), NotesFormat::Html).toStdString(),
                  c.text)
            << c.html;
    }
    EXPECT_EQ(releaseNotesText(u"* <b>\r\n  &amp;\u202e "_s, NotesFormat::PlainText),
              u"* <b>\n  &amp;"_s);
}

TEST(ReleaseNotes, take_no_longer_however_much_is_nested_and_end_somewhere) {
    for (const char* piece : {"<div>", "<ul><li>", "<!--", "<script>", "&amp", "&", "<a ", "<",
                              "<table><tr><td colspan=60000>", "<br>", "x"}) {
        // Of the processor's time, of which a busy machine takes none away.
        const std::clock_t start = std::clock();
        const QString text =
            releaseNotesText(QString::fromLatin1(piece).repeated(100'000 / 2), NotesFormat::Html);
        EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC) << piece;
        EXPECT_LE(text.size(), 20'010) << piece;
    }
}

} // namespace

} // namespace platform
