#include "platform/appcast/AppcastReader.h"

#include <QTimeZone>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

using Items = std::vector<AppcastItem>;

std::variant<Items, AppcastError> read(const QByteArray& feed) {
    return readAppcast(feed, {u"linux"_s, {u"de"_s, u"en"_s}});
}

QByteArray feedOf(const QByteArray& items) {
    return R"(<?xml version="1.0" encoding="utf-8"?><rss version="2.0"
        xmlns:s="http://www.andymatuschak.org/xml-namespaces/sparkle"
        xmlns:other="urn:other"><channel><title>Quillet</title>)" +
           items + "</channel></rss>";
}

Items itemsOf(const QByteArray& items) {
    const auto answer = read(feedOf(items));
    EXPECT_TRUE(std::holds_alternative<Items>(answer))
        << std::get<AppcastError>(answer).reason.toStdString();
    return std::holds_alternative<Items>(answer) ? std::get<Items>(answer) : Items{};
}

TEST(AppcastReader, reads_everything_that_decides_and_everything_that_is_shown) {
    const Items items = itemsOf(R"(<item>
        <title>Version 1.1</title>
        <link> https://quillet.invalid/download </link>
        <pubDate>Mon, 23 Nov 2026 09:00:00 +0100</pubDate>
        <s:version>12</s:version>
        <s:shortVersionString> 1.1 </s:shortVersionString>
        <s:channel>beta</s:channel>
        <s:minimumSystemVersion>12.0</s:minimumSystemVersion>
        <s:maximumSystemVersion>13</s:maximumSystemVersion>
        <s:phasedRolloutInterval>86400</s:phasedRolloutInterval>
        <s:criticalUpdate s:version="9"/>
        <s:releaseNotesLink xml:lang="fr">https://quillet.invalid/fr</s:releaseNotesLink>
        <s:releaseNotesLink xml:lang="de">https://quillet.invalid/de</s:releaseNotesLink>
        <s:releaseNotesLink>https://quillet.invalid/notes</s:releaseNotesLink>
        <description xml:lang="en-GB">English</description>
        <description xml:lang="de" s:format="plain-text">Deutsch <![CDATA[<&>]]></description>
        <s:deltas><enclosure s:version="99" s:os="linux" url="x"/></s:deltas>
        <other:version>77</other:version>
        <enclosure url="https://quillet.invalid/q" length="1" type="application/octet-stream"/>
        </item>)");
    ASSERT_EQ(items.size(), 1U);
    const AppcastItem& item = items.front();
    EXPECT_EQ(item.version.marketing, u"1.1"_s);
    EXPECT_EQ(item.version.build, u"12"_s);
    EXPECT_EQ(item.channel, u"beta"_s);
    EXPECT_EQ(item.minimumSystemVersion, u"12.0"_s);
    EXPECT_EQ(item.maximumSystemVersion, u"13"_s);
    EXPECT_EQ(item.published, QDateTime({2026, 11, 23}, {8, 0}, QTimeZone::utc()));
    EXPECT_EQ(item.phasedRolloutInterval, std::chrono::hours(24));
    EXPECT_TRUE(item.isCritical);
    EXPECT_EQ(item.criticalBelow, u"9"_s);
    EXPECT_EQ(item.page, QUrl(u"https://quillet.invalid/download"_s));
    EXPECT_EQ(item.releaseNotesPage, QUrl(u"https://quillet.invalid/de"_s));
    EXPECT_EQ(item.notes, u"Deutsch <&>"_s);
    EXPECT_EQ(item.notesFormat, NotesFormat::PlainText);
}

TEST(AppcastReader, has_no_page_but_what_a_browser_shows) {
    for (const char* url :
         {"javascript:alert(1)", "file:///etc/passwd", "http:/etc/passwd", "",
          "//quillet.invalid/x", "data:text/html,x", "https://", "not a url",
          "x-apple.systempreferences:x", "https ://quillet.invalid", "ftp://quillet.invalid/x"}) {
        const Items items =
            itemsOf(QByteArray("<item><s:version>2</s:version><link>") + url +
                    "</link><s:releaseNotesLink>" + url + "</s:releaseNotesLink></item>");
        ASSERT_EQ(items.size(), 1U) << url;
        EXPECT_TRUE(items[0].page.isEmpty()) << url;
        EXPECT_TRUE(items[0].releaseNotesPage.isEmpty()) << url;
    }
}

TEST(AppcastReader, says_why_a_feed_cannot_be_read) {
    QByteArray attributes;
    for (int i = 0; i < 200'000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=''";
    }
    const struct {
        QByteArray feed;
        const char* reason;
    } cases[] = {
        {"", "line 1: Premature end of document."},
        {"<html><body/></html>", "it is not an appcast"},
        {"<rss/>", "it is not an appcast"},
        {R"({"json": true})", "line 1: Start tag expected."},
        {feedOf("<item>"), "line 3: Opening and ending tag mismatch."},
        {feedOf("<item><title>\xff\xfe</title></item>"), "it is not UTF-8"},
        {feedOf("<item><s:version>1&what;</s:version></item>"),
         "line 3: Entity 'what' not declared."},
        {R"(<!DOCTYPE rss [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;">]>
            <rss><channel><item><title>&b;</title></item></channel></rss>)",
         "document types are not accepted"},
        {R"(<!DOCTYPE rss SYSTEM "file:///etc/passwd"><rss><channel/></rss>)",
         "document types are not accepted"},
        {feedOf("<a b='>'" + attributes + "/>"), "too many attributes"},
        {feedOf("<!-- ' --><a" + attributes + "/>"), "too many attributes"},
        {feedOf(QByteArray("<a>").repeated(1'000'000)), "line 3: too many elements"},
        {feedOf(QByteArray("<a/>").repeated(1'000'000)), "line 3: too many elements"},
    };
    for (const auto& c : cases) {
        const auto answer = read(c.feed);
        const auto* error = std::get_if<AppcastError>(&answer);
        ASSERT_NE(error, nullptr) << c.reason;
        EXPECT_EQ(error->reason.toStdString(), c.reason);
    }
}

} // namespace

} // namespace platform
