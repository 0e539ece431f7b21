#include "platform/linux/freedesktop/DesktopEntry.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

DesktopEntry entryFrom(const QByteArray& keys, const QString& locale = QString()) {
    return *DesktopEntry::from(KeyFile::parse("[Desktop Entry]\n" + keys), localeSuffixes(locale));
}

} // namespace

TEST(KeyFile, KeepsGroupsApartAndSkipsWhatIsNoLineOfTheFormat) {
    const auto file = KeyFile::parse("Name=before any group\n"
                                     "# Name=comment\n"
                                     "[Desktop Entry]\r\n"
                                     "  Name =  Editor \r\n"
                                     "Name=a second time\n"
                                     "no key at all\n"
                                     "=no name\n"
                                     "Comment=\xff\xfe not UTF-8\n"
                                     "[Desktop Action new]\n"
                                     "Name=New window\n"
                                     "[damaged heading\n"
                                     "Exec=belongs to nobody");
    const QString group = u"Desktop Entry"_s;
    EXPECT_EQ(file.string(group, u"Name"_s), u"Editor"_s);
    EXPECT_FALSE(file.raw(group, u"Comment"_s));
    EXPECT_EQ(file.string(u"Desktop Action new"_s, u"Name"_s), u"New window"_s);
    EXPECT_FALSE(file.raw(u"Desktop Action new"_s, u"Exec"_s));
}

TEST(KeyFile, ResolvesEscapesAndSeparatesLists) {
    const auto file = KeyFile::parse("[G]\n"
                                     "Text=\\sone\\ntwo\\tthree\\\\four\\q\n"
                                     "List=a\\;b;c;;d\\\\;e\n"
                                     "Yes=true\nNo=false\nOdd=1\n");
    const QString group = u"G"_s;
    EXPECT_EQ(file.string(group, u"Text"_s), u" one\ntwo\tthree\\four\\q"_s);
    EXPECT_EQ(file.list(group, u"List"_s), (QStringList{u"a;b"_s, u"c"_s, u"d\\"_s, u"e"_s}));
    EXPECT_EQ(file.boolean(group, u"Yes"_s), true);
    EXPECT_EQ(file.boolean(group, u"No"_s), false);
    EXPECT_EQ(file.boolean(group, u"Odd"_s), std::nullopt);
}

TEST(DesktopEntry, TheNameFollowsTheLocaleFromTheMostToTheLeastExact) {
    const QByteArray names = "Type=Application\nName=Notes\nName[de]=Notizen\n"
                             "Name[de_AT]=Zettel\nName[sr]=Бележке\nName[sr@latin]=Beleške\n";
    const auto name = [&](const char* locale) {
        return entryFrom(names, QString::fromUtf8(locale)).name.toStdString();
    };
    EXPECT_EQ(name("de_AT.UTF-8"), "Zettel");
    EXPECT_EQ(name("de_DE.UTF-8@euro"), "Notizen");
    EXPECT_EQ(name("sr_RS@latin"), "Beleške");
    EXPECT_EQ(name("sr_RS.UTF-8"), "Бележке");
    EXPECT_EQ(name("fr_FR.UTF-8"), "Notes");
    EXPECT_EQ(name("C.UTF-8"), "Notes");
    EXPECT_EQ(name(""), "Notes");
}

TEST(DesktopEntry, TheCommandLineLosesItsFieldCodesAndKeepsItsQuotes) {
    const auto entry = entryFrom(
        "Type=Application\nName=My Notes\n"
        "Exec=env LANG=C \"/opt/my notes/notes\" --title %c --escaped \\\\$5 100%% %U --x=%i\n");
    EXPECT_EQ(entry.commandLine(),
              (QStringList{u"env"_s, u"LANG=C"_s, u"/opt/my notes/notes"_s, u"--title"_s,
                           u"My Notes"_s, u"--escaped"_s, u"$5"_s, u"100%"_s, u"--x="_s}));
    EXPECT_EQ(entry.program, u"notes"_s);
    const auto open = entryFrom("Type=Application\nExec=notes \"without end\n");
    EXPECT_TRUE(open.commandLine().isEmpty());
    EXPECT_TRUE(open.program.isEmpty());
    EXPECT_TRUE(entryFrom("Type=Application\nExec=notes %\n").commandLine().contains(u"notes"_s));
}

} // namespace platform
