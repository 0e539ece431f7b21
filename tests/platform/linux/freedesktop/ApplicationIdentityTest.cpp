#include "platform/linux/freedesktop/ApplicationIdentity.h"
#include "platform/linux/freedesktop/AccessibilitySettings.h"
#include "platform/linux/freedesktop/RunningProcess.h"

#include <gtest/gtest.h>

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

struct Row {
    const char* what;
    ApplicationClues clues;
    const char* identifier; // null: none
};

ApplicationClues windowClass(const char* name, const char* instance = "") {
    ApplicationClues clues;
    clues.windowClass = QString::fromLatin1(name);
    clues.windowInstance = QString::fromLatin1(instance);
    return clues;
}

ApplicationClues with(ApplicationClues clues, QString ApplicationClues::*clue, const char* value) {
    clues.*clue = QString::fromLatin1(value);
    return clues;
}

ApplicationClues running(ApplicationClues clues, const QStringList& programs) {
    clues.programs = programs;
    return clues;
}

} // namespace

TEST(ApplicationIdentity, TheFirstClueThatNamesAnInstalledApplicationCounts) {
    const std::vector<Row> rows{
        {"GTK application id",
         with(windowClass("Other"), &ApplicationClues::gtkApplicationId, "org.gnome.Gnote"),
         "org.gnome.Gnote"},
        {"GTK application id for which no file exists",
         with(windowClass("libreoffice-writer"), &ApplicationClues::gtkApplicationId,
              "org.libreoffice"),
         "libreoffice-writer"},
        {"KDE desktop file, with suffix",
         with(windowClass("x"), &ApplicationClues::kdeDesktopFile, "org.kde.kate.desktop"),
         "org.kde.kate"},
        {"BAMF desktop file, a path",
         with(windowClass("x"), &ApplicationClues::bamfDesktopFile,
              "/usr/share/applications/chromium.desktop"),
         "chromium"},
        {"StartupWMClass is the class, in other case", windowClass("kate-editor"), "org.kde.kate"},
        {"StartupWMClass is the instance", windowClass("x", "chromium"), "chromium"},
        {"class is the id", windowClass("Weather"), "weather"},
        {"class is the last part of the id", windowClass("Gedit", "gedit"), "org.gnome.gedit"},
        {"program", running(windowClass("x"), {QStringLiteral("my-weather")}), "weather"},
        {"program of two entries: the one that is listed",
         running(windowClass("x"), {QStringLiteral("mailer")}), "mail"},
        {"a terminal program has no window",
         running(windowClass("x"), {QStringLiteral("python3.11")}), "x"},
        {"control group",
         with(windowClass("x"), &ApplicationClues::controlGroup, "app-gnome-org.kde.kate-77.scope"),
         "org.kde.kate"},
        {"nothing installed: the class", windowClass("XTerm", "xterm"), "XTerm"},
        {"nothing known", windowClass("", "instance"), nullptr},
    };
    for (const auto& row : rows) {
        const auto identifier =
            applicationIdentifier(row.clues, findApplication(row.clues, installed()));
        EXPECT_EQ(identifier, row.identifier == nullptr
                                  ? std::nullopt
                                  : std::optional(QString::fromLatin1(row.identifier)))
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
                    {QStringLiteral("/usr/lib/libreoffice/program/soffice.bin")}),
              "soffice.bin");
    EXPECT_EQ(names("/usr/bin/notes (deleted)", {QStringLiteral("notes-launcher")}),
              "notes notes-launcher");
    EXPECT_EQ(names("/usr/bin/python3.11", {QStringLiteral("python3"), QStringLiteral("-u"),
                                            QStringLiteral("/opt/notes")}),
              "notes");
    EXPECT_EQ(names("/usr/bin/bash", {QStringLiteral("-bash")}), "");
    EXPECT_EQ(names("", {}), "");
}

TEST(DesktopEntryTable, OfOneIdTheFirstEntryCountsAndAHiddenOneHidesTheRest) {
    auto hidden = entry("notes", "Name=hidden\nHidden=true\n");
    auto link = entry("page", "Name=link\n");
    link.isApplication = false;
    const DesktopEntryTable table({hidden, link, entry("mail", "Name=the user's\n"),
                                   entry("notes", ""), entry("page", ""),
                                   entry("mail", "Name=the system's\n")});
    EXPECT_EQ(table.withId(QStringLiteral("notes")), nullptr);
    EXPECT_EQ(table.withId(QStringLiteral("page")), nullptr);
    EXPECT_EQ(table.withId(QStringLiteral("mail.desktop"))->name, QStringLiteral("the user's"));
    EXPECT_EQ(table.withId(QString()), nullptr);
    EXPECT_EQ(desktopFileId(QStringLiteral("vendor/tools/mail.desktop")),
              QStringLiteral("vendor-tools-mail"));
}

TEST(AccessibilitySettings, OnlyTheRunningDesktopsOwnAreOffered) {
    const DesktopEntryTable table(
        {entry("gnome-universal-access-panel", "NoDisplay=true\nOnlyShowIn=GNOME;\n"),
         entry("xfce4-accessibility-settings", "OnlyShowIn=XFCE;\nExec=no-such-program-here\n")});
    const auto* found = accessibilitySettings(table, {QStringLiteral("XFCE")});
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->id, QStringLiteral("xfce4-accessibility-settings"));
    EXPECT_FALSE(startDetached(*found));
    EXPECT_EQ(accessibilitySettings(table, {QStringLiteral("KDE")}), nullptr);
}

} // namespace platform
