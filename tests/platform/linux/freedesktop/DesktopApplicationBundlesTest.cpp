#include "platform/linux/freedesktop/DesktopApplicationBundles.h"
#include "ConfigFolder.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using platform::DesktopApplicationBundles;

namespace {

class DesktopApplicationBundlesTest : public testing::Test {
protected:
    /// Writes a file into one of the folders; its path.
    QString write(const QString& folder, const QString& name, const QByteArray& contents) {
        const QString path = folder + u'/' + name;
        root.write(QDir(root.path({})).relativeFilePath(path), contents);
        return path;
    }

    /// An entry with a name and the given further keys.
    QString entry(const QString& folder, const QByteArray& keys,
                  const QString& name = u"org.example.Notes.desktop"_s) {
        return write(folder, name,
                     "[Desktop Entry]\nType=Application\nName=Notes\nExec=true\n" + keys);
    }

    fakes::ConfigFolder root;
    const QString local = root.path(u"local"_s);
    const QString system = root.path(u"system"_s);
    const QString user = root.path(u"user"_s);
    DesktopApplicationBundles bundles{
        {{local, system}, user}, {u"de_AT"_s, u"de"_s}, {u"GNOME"_s, u"XFCE"_s}};
};

} // namespace

TEST_F(DesktopApplicationBundlesTest, ListsWhatTheDesktopLists) {
    for (const char* keys : {"", "OnlyShowIn=KDE;XFCE;\n", "NotShowIn=KDE;\nNoDisplay=false\n",
                             "TryExec=sh\n", "TryExec=/bin/sh\n"}) {
        EXPECT_TRUE(bundles.bundle(entry(system, keys))) << keys;
    }
    for (const char* keys :
         {"NoDisplay=true\n", "Hidden=true\n", "OnlyShowIn=KDE;\n", "NotShowIn=GNOME;\n",
          "TryExec=no-such-program-anywhere\n", "TryExec=/etc/passwd\n"}) {
        EXPECT_FALSE(bundles.bundle(entry(system, keys))) << keys;
    }
}

TEST_F(DesktopApplicationBundlesTest, AnEntryThatIsHiddenHidesThoseThatCountLess) {
    const QString ofSystem = entry(system, "");
    // Shown by the user too, or damaged: it stays.
    const QString ofUser = entry(user, "Name[de]=Meine Notizen\n");
    EXPECT_TRUE(bundles.bundle(ofSystem));
    EXPECT_TRUE(bundles.bundle(ofUser));
    write(user, u"org.example.Notes.desktop"_s, "nothing");
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

