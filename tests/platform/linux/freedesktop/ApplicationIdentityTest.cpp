#include "platform/linux/freedesktop/ApplicationIdentity.h"
#include "platform/linux/freedesktop/RunningProcess.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

DesktopEntry entry(const char* id, const char* keys) {
    auto result = *DesktopEntry::from(
        KeyFile::parse(QByteArray("[Desktop Entry]\nType=Application\n") + keys), {});
    result.id = QString::fromLatin1(id);
    return result;
}

const DesktopEntryTable& installed() {
    static const DesktopEntryTable table({
        entry("org.gnome.Gnote", "Exec=gnote %u\n"),
        entry("org.gnome.gedit", "Exec=gedit %U\n"),
        entry("org.kde.kate", "Exec=kate -b %U\nStartupWMClass=Kate-Editor\n"),
        entry("libreoffice-writer",
              "Exec=libreoffice --writer\nStartupWMClass=libreoffice-writer\n"),
        entry("chromium", "Exec=/usr/bin/chromium %U\nStartupWMClass=Chromium\n"),
        entry("python3.11", "Exec=/usr/bin/python3.11\nTerminal=true\nNoDisplay=true\n"),
        entry("weather", "Exec=my-weather\n"),
        entry("mail-compose", "Exec=mailer --compose\nNoDisplay=true\n"),
        entry("mail", "Exec=mailer\n"),
    });
    return table;
}

} // namespace

TEST(ApplicationIdentity, TheFirstClueThatNamesAnInstalledApplicationCounts) {
    const struct {
        const char* what;
        ApplicationClues clues;
        std::optional<QString> identifier;
    } rows[]{
        {"GTK application id",
         {.gtkApplicationId = u"org.gnome.Gnote"_s, .windowClass = u"Other"_s},
         u"org.gnome.Gnote"_s},
        {"GTK application id for which no file exists",
         {.gtkApplicationId = u"org.libreoffice"_s, .windowClass = u"libreoffice-writer"_s},
         u"libreoffice-writer"_s},
        {"KDE desktop file, with suffix",
         {.kdeDesktopFile = u"org.kde.kate.desktop"_s, .windowClass = u"x"_s},
         u"org.kde.kate"_s},
        {"BAMF desktop file, a path",
         {.bamfDesktopFile = u"/usr/share/applications/chromium.desktop"_s, .windowClass = u"x"_s},
         u"chromium"_s},
        {"StartupWMClass is the class, in other case",
         {.windowClass = u"kate-editor"_s},
         u"org.kde.kate"_s},
        {"StartupWMClass is the instance",
         {.windowClass = u"x"_s, .windowInstance = u"chromium"_s},
         u"chromium"_s},
        {"class is the id", {.windowClass = u"Weather"_s}, u"weather"_s},
        {"class is the last part of the id", {.windowClass = u"Gedit"_s}, u"org.gnome.gedit"_s},
        {"program", {.windowClass = u"x"_s, .programs = {u"my-weather"_s}}, u"weather"_s},
        {"program of two entries: the one that is listed",
         {.windowClass = u"x"_s, .programs = {u"mailer"_s}},
         u"mail"_s},
        {"a terminal program has no window",
         {.windowClass = u"x"_s, .programs = {u"python3.11"_s}},
         u"x"_s},
        {"control group",
         {.windowClass = u"x"_s, .controlGroup = u"app-gnome-org.kde.kate-77.scope"_s},
         u"org.kde.kate"_s},
        {"nothing installed: the class", {.windowClass = u"XTerm"_s}, u"XTerm"_s},
        {"nothing known", {.windowInstance = u"instance"_s}, std::nullopt},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(applicationIdentifier(row.clues, findApplication(row.clues, installed())),
                  row.identifier)
            << row.what;
    }
}

TEST(ApplicationIdentity, UnitsOfTheSessionManagerNameApplications) {
    const auto ids = [](const char* unit) {
        return applicationIdsOfUnit(QString::fromLatin1(unit)).join(u' ').toStdString();
    };
    EXPECT_EQ(ids("app-gnome-org.gnome.gedit-4711.scope"), "gnome-org.gnome.gedit org.gnome.gedit");
    EXPECT_EQ(ids("app-chromium-99.scope"), "chromium");
    EXPECT_EQ(ids("app-libreoffice\\x2dwriter@1f.service"), "libreoffice-writer");
    EXPECT_EQ(ids("session-2.scope"), "");
    EXPECT_EQ(ids("app-org.gnome.Terminal.slice"), "");
    EXPECT_EQ(ids("app-bad\\x"), "");
}

TEST(RunningProcess, AnInterpretersScriptIsTheProgram) {
    const auto names = [](const char* executable, const QStringList& arguments) {
        return RunningProcess::programNames(QString::fromLatin1(executable), arguments)
            .join(u' ')
            .toStdString();
    };
    EXPECT_EQ(names("/usr/lib/libreoffice/program/soffice.bin",
                    {u"/usr/lib/libreoffice/program/soffice.bin"_s}),
              "soffice.bin");
    EXPECT_EQ(names("/usr/bin/notes (deleted)", {u"notes-launcher"_s}), "notes notes-launcher");
    EXPECT_EQ(names("/usr/bin/python3.11", {u"python3"_s, u"-u"_s, u"/opt/notes"_s}), "notes");
    EXPECT_EQ(names("/usr/bin/bash", {u"-bash"_s}), "");
    EXPECT_EQ(names("", {}), "");
}

TEST(DesktopEntryTable, OfOneIdTheFirstEntryCountsAndAHiddenOneHidesTheRest) {
    auto hidden = entry("notes", "Name=hidden\nHidden=true\n");
    auto link = entry("page", "Name=link\n");
    link.isApplication = false;
    const DesktopEntryTable table({hidden, link, entry("mail", "Name=the user's\n"),
                                   entry("notes", ""), entry("page", ""),
                                   entry("mail", "Name=the system's\n")});
    EXPECT_EQ(table.withId(u"notes"_s), nullptr);
    EXPECT_EQ(table.withId(u"page"_s), nullptr);
    EXPECT_EQ(table.withId(u"mail.desktop"_s)->name, u"the user's"_s);
    EXPECT_EQ(table.withId(QString()), nullptr);
    EXPECT_EQ(desktopFileId(u"vendor/tools/mail.desktop"_s), u"vendor-tools-mail"_s);
}

} // namespace platform
