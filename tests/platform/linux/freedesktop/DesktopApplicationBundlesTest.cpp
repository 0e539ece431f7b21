#include "platform/linux/freedesktop/DesktopApplicationBundles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using platform::DesktopApplicationBundles;

namespace {

class DesktopApplicationBundlesTest : public testing::Test {
protected:
    /// Writes a file into one of the folders; its path.
    QString write(const QString& folder, const QString& name, const QByteArray& contents) {
        QDir().mkpath(folder);
        const QString path = folder + QLatin1Char('/') + name;
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        return path;
    }

    /// An entry with a name and the given further keys.
    QString entry(const QString& folder, const QByteArray& keys,
                  const QString& name = QStringLiteral("org.example.Notes.desktop")) {
        return write(folder, name,
                     "[Desktop Entry]\nType=Application\nName=Notes\nExec=true\n" + keys);
    }

    bool lists(const QByteArray& keys) { return bundles.bundle(entry(system, keys)).has_value(); }

    QTemporaryDir root;
    const QString local = root.filePath(QStringLiteral("local"));
    const QString system = root.filePath(QStringLiteral("system"));
    const QString user = root.filePath(QStringLiteral("user"));
    DesktopApplicationBundles bundles{{{local, system}, user},
                                      {QStringLiteral("de_AT"), QStringLiteral("de")},
                                      {QStringLiteral("GNOME"), QStringLiteral("XFCE")}};
};

} // namespace

TEST_F(DesktopApplicationBundlesTest, AnEntryIsKnownByItsFileNameAndItsNameInTheUsersLanguage) {
    const auto bundle = bundles.bundle(entry(system, "Name[de]=Notizen\nName[fr]=Carnets\n"));
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle->bundleIdentifier, QStringLiteral("org.example.Notes"));
    EXPECT_EQ(bundle->name, QStringLiteral("Notizen"));
    EXPECT_EQ(bundle->displayName, std::nullopt);
}

TEST_F(DesktopApplicationBundlesTest, ListsWhatTheDesktopLists) {
    EXPECT_TRUE(lists(""));
    EXPECT_TRUE(lists("OnlyShowIn=KDE;XFCE;\n"));
    EXPECT_TRUE(lists("NotShowIn=KDE;\nNoDisplay=false\n"));
    EXPECT_TRUE(lists("TryExec=sh\n"));
    EXPECT_TRUE(lists("TryExec=/bin/sh\n"));
    EXPECT_FALSE(lists("NoDisplay=true\n"));
    EXPECT_FALSE(lists("Hidden=true\n"));
    EXPECT_FALSE(lists("OnlyShowIn=KDE;\n"));
    EXPECT_FALSE(lists("NotShowIn=GNOME;\n"));
    EXPECT_FALSE(lists("TryExec=no-such-program-anywhere\n"));
    EXPECT_FALSE(lists("TryExec=/etc/passwd\n"));
}

TEST_F(DesktopApplicationBundlesTest, WhatIsNoEntryIsSkipped) {
    const auto at = [&](const QByteArray& contents) {
        return bundles.bundle(write(system, QStringLiteral("a.desktop"), contents));
    };
    EXPECT_FALSE(at(""));
    EXPECT_FALSE(at("Type=Application\nName=No group\n"));
    EXPECT_FALSE(at("[Desktop Entry]\nType=Link\nName=A link\n"));
    EXPECT_FALSE(at("[Desktop Entry]\nName=No type\n"));
    EXPECT_FALSE(at(QByteArray(3 << 20, 'x') + "\n[Desktop Entry]\nType=Application\nName=Long\n"));
    // Listed, but without the name that it would need.
    EXPECT_EQ(at("[Desktop Entry]\nType=Application\n")->name, std::nullopt);
    EXPECT_EQ(at("[Desktop Entry]\nType=Application\nName=\xff\xfe\n")->name, std::nullopt);

    QDir().mkpath(system + QStringLiteral("/folder.desktop"));
    QFile::link(QStringLiteral("loop.desktop"), system + QStringLiteral("/loop.desktop"));
    ASSERT_EQ(mkfifo(qPrintable(system + QStringLiteral("/pipe.desktop")), 0600), 0);
    for (const char* name : {"folder", "loop", "pipe", "missing"}) {
        const QString path =
            system + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".desktop");
        EXPECT_FALSE(bundles.bundle(path)) << name;
        EXPECT_FALSE(bundles.iconForFile(path)) << name;
    }
    EXPECT_FALSE(bundles.bundle(QStringLiteral(".desktop")));
}

TEST_F(DesktopApplicationBundlesTest, FoldersOfTheSystemComeFirstAndAreReadOneLevelDeep) {
    EXPECT_EQ(bundles.folders(), (QStringList{local, system, user}));
    entry(system, "");
    entry(system + QStringLiteral("/vendor"), "");
    auto entries = bundles.entries(system);
    entries.sort();
    EXPECT_EQ(entries,
              (QStringList{QStringLiteral("org.example.Notes.desktop"), QStringLiteral("vendor")}));
    EXPECT_TRUE(bundles.entries(user).isEmpty());
    EXPECT_EQ(bundles.suffix(), QStringLiteral(".desktop"));
}

TEST_F(DesktopApplicationBundlesTest, AnEntryThatIsHiddenHidesThoseThatCountLess) {
    const QString ofSystem = entry(system, "");
    // Shown by the user too, or damaged: it stays.
    const QString ofUser = entry(user, "Name[de]=Meine Notizen\n");
    EXPECT_TRUE(bundles.bundle(ofSystem));
    EXPECT_TRUE(bundles.bundle(ofUser));
    write(user, QStringLiteral("org.example.Notes.desktop"), "nothing");
    EXPECT_TRUE(bundles.bundle(ofSystem));

    for (const char* keys : {"Hidden=true\n", "NoDisplay=true\n", "OnlyShowIn=KDE;\n"}) {
        entry(user, keys);
        EXPECT_FALSE(bundles.bundle(ofSystem)) << keys;
    }
    QFile::remove(ofUser);
    entry(local, "Hidden=true\n");
    EXPECT_FALSE(bundles.bundle(ofSystem));
    // The system's hide nothing of the user's.
    EXPECT_TRUE(bundles.bundle(entry(user, "")));
}

TEST_F(DesktopApplicationBundlesTest, AnIconIsANameOrAPath) {
    const QString notes = entry(system, "Icon=notes\n");
    const QString mail =
        entry(system, "Icon=/usr/share/mail.png\n", QStringLiteral("mail.desktop"));
    ASSERT_TRUE(bundles.bundle(notes));
    ASSERT_TRUE(bundles.bundle(mail));
    EXPECT_EQ(bundles.iconForFile(notes)->nameOrPath, QStringLiteral("notes"));
    EXPECT_EQ(bundles.iconForFile(mail)->nameOrPath, QStringLiteral("/usr/share/mail.png"));
    ASSERT_TRUE(bundles.bundle(entry(system, "")));
    EXPECT_EQ(bundles.iconForFile(notes), std::nullopt);
}
