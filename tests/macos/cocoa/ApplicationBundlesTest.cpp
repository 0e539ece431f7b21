#include "macos/cocoa/AppKitTest.h"
#include "platform/macos/NSBundleApplicationBundles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class NSBundleApplicationBundlesTest : public AppKitTest {
protected:
    /// A bundle where GNUstep looks for the information; on a Mac it is in "Contents".
    void makeBundle(const QString& name, const QByteArray& keys) {
        const QString resources = folder.filePath(name + QStringLiteral("/Resources"));
        QDir().mkpath(resources);
        QFile file(resources + QStringLiteral("/Info-gnustep.plist"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" +
                   keys + "</dict></plist>");
    }

    const QTemporaryDir folder;
    platform::NSBundleApplicationBundles bundles;
};

TEST_F(NSBundleApplicationBundlesTest, LooksInTheTwoApplicationsFoldersAndTheUsersOwn) {
    const QStringList folders = bundles.folders();
    ASSERT_EQ(folders.size(), 3);
    EXPECT_EQ(folders[0], QStringLiteral("/Applications"));
    EXPECT_EQ(folders[1], QStringLiteral("/System/Applications"));
    EXPECT_TRUE(folders[2].endsWith(QStringLiteral("/Applications")));
    EXPECT_GT(folders[2].size(), folders[0].size());
    EXPECT_EQ(bundles.suffix(), QStringLiteral(".app"));
    EXPECT_TRUE(bundles.entries(QStringLiteral("/no/such/folder")).isEmpty());
}

TEST_F(NSBundleApplicationBundlesTest, TellsOfABundleOnlyWhatItsInformationSaysAsStrings) {
    makeBundle(QStringLiteral("Notes.app"),
               "<key>CFBundleIdentifier</key><string>com.example.Notes</string>"
               "<key>CFBundleName</key><string>N\xc3\xb6tes</string>"
               "<key>CFBundleDisplayName</key><string>Notes for All</string>");
    makeBundle(QStringLiteral("Odd.app"), "<key>CFBundleName</key><array><string>a</string></array>"
                                          "<key>CFBundleDisplayName</key><integer>3</integer>");
    QStringList entries = bundles.entries(folder.path());
    entries.sort();
    EXPECT_EQ(entries, (QStringList{QStringLiteral("Notes.app"), QStringLiteral("Odd.app")}));

    const auto notes = bundles.bundle(folder.filePath(QStringLiteral("Notes.app")));
    ASSERT_TRUE(notes);
    EXPECT_EQ(notes->bundleIdentifier, QStringLiteral("com.example.Notes"));
    EXPECT_EQ(notes->name, QStringLiteral("Nötes"));
    EXPECT_EQ(notes->displayName, QStringLiteral("Notes for All"));

    const auto odd = bundles.bundle(folder.filePath(QStringLiteral("Odd.app")));
    ASSERT_TRUE(odd);
    EXPECT_EQ(odd->bundleIdentifier, std::nullopt);
    EXPECT_EQ(odd->name, std::nullopt);
    EXPECT_EQ(odd->displayName, std::nullopt);
    EXPECT_FALSE(bundles.bundle(folder.filePath(QStringLiteral("Gone.app"))));
}

} // namespace
