#include "platform/linux/freedesktop/DesktopEntry.h"
#include "ConfigFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

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
    const QString group = QStringLiteral("Desktop Entry");
    EXPECT_EQ(file.string(group, QStringLiteral("Name")), QStringLiteral("Editor"));
    EXPECT_FALSE(file.raw(group, QStringLiteral("Comment")));
    EXPECT_EQ(file.string(QStringLiteral("Desktop Action new"), QStringLiteral("Name")),
              QStringLiteral("New window"));
    EXPECT_FALSE(file.raw(QStringLiteral("Desktop Action new"), QStringLiteral("Exec")));
}

TEST(KeyFile, ResolvesEscapesAndSeparatesLists) {
    const auto file = KeyFile::parse("[G]\n"
                                     "Text=\\sone\\ntwo\\tthree\\\\four\\q\n"
                                     "List=a\\;b;c;;d\\\\;e\n"
                                     "Yes=true\nNo=false\nOdd=1\n");
    const QString group = QStringLiteral("G");
    EXPECT_EQ(file.string(group, QStringLiteral("Text")),
              QStringLiteral(" one\ntwo\tthree\\four\\q"));
    EXPECT_EQ(file.list(group, QStringLiteral("List")),
              (QStringList{QStringLiteral("a;b"), QStringLiteral("c"), QStringLiteral("d\\"),
                           QStringLiteral("e")}));
    EXPECT_EQ(file.boolean(group, QStringLiteral("Yes")), true);
    EXPECT_EQ(file.boolean(group, QStringLiteral("No")), false);
    EXPECT_EQ(file.boolean(group, QStringLiteral("Odd")), std::nullopt);
}

TEST(KeyFile, OnlyRegularFilesOfSensibleSizeAreRead) {
    const fakes::ConfigFolder folder;
    folder.write(QStringLiteral("huge"), "[G]\nKey=value\n" + QByteArray((1 << 20) + 1, '#'));
    const QString pipe = folder.path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(KeyFile::read(folder.path(QStringLiteral("huge"))));
    EXPECT_FALSE(KeyFile::read(folder.path(QStringLiteral("missing"))));
    EXPECT_FALSE(KeyFile::read(pipe)); // and it does not wait for a writer either
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
              (QStringList{QStringLiteral("env"), QStringLiteral("LANG=C"),
                           QStringLiteral("/opt/my notes/notes"), QStringLiteral("--title"),
                           QStringLiteral("My Notes"), QStringLiteral("--escaped"),
                           QStringLiteral("$5"), QStringLiteral("100%"), QStringLiteral("--x=")}));
    EXPECT_EQ(entry.program, QStringLiteral("notes"));
    const auto open = entryFrom("Type=Application\nExec=notes \"without end\n");
    EXPECT_TRUE(open.commandLine().isEmpty());
    EXPECT_TRUE(open.program.isEmpty());
    EXPECT_TRUE(entryFrom("Type=Application\nExec=notes %\n")
                    .commandLine()
                    .contains(QStringLiteral("notes")));
}

TEST(DesktopEntry, ADesktopIsMeantByNameOrNotExcluded) {
    const QStringList gnome{QStringLiteral("ubuntu"), QStringLiteral("GNOME")};
    EXPECT_TRUE(entryFrom("OnlyShowIn=GNOME;Unity;\n").isMeantFor(gnome));
    EXPECT_FALSE(entryFrom("OnlyShowIn=KDE;\n").isMeantFor(gnome));
    EXPECT_FALSE(entryFrom("OnlyShowIn=KDE;\n").isMeantFor({}));
    EXPECT_FALSE(entryFrom("NotShowIn=GNOME;\n").isMeantFor(gnome));
    EXPECT_TRUE(entryFrom("NotShowIn=KDE;\n").isMeantFor(gnome));
}

TEST(DesktopEntry, AFileWithoutItsGroupIsNone) {
    EXPECT_FALSE(DesktopEntry::from(KeyFile::parse("Name=Notes\n"), {}));
    EXPECT_FALSE(DesktopEntry::from(KeyFile::parse(QByteArray("\0\xff\n[", 4)), {}));
}

} // namespace platform
