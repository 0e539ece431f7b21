#include "platform/macos/AppKitWorkspace.h"

#include "macos/cocoa/AppKitTest.h"

using platform::ActivationPolicy;
using platform::RunningApplication;

namespace {

class AppKitWorkspaceTest : public AppKitTest {
protected:
    platform::AppKitWorkspace workspace;
};

TEST_F(AppKitWorkspaceTest, TellsOfApplicationsInTheSystemsOrderWithWhatEachHas) {
    appKit.running = {
        {7, QStringLiteral("com.example.Notes"), QStringLiteral("Notizen ✎"),
         QStringLiteral("/Applications/Notes.app"), QStringLiteral("/Applications/Notes.app/x"), 0},
        {8, std::nullopt, std::nullopt, std::nullopt, QStringLiteral("/usr/libexec/tool"), 1},
        {9, QStringLiteral("com.example.Agent"), QString(), std::nullopt, std::nullopt, 2},
    };
    const auto found = workspace.runningApplications();
    ASSERT_EQ(found.size(), 3U);

    EXPECT_EQ(found[0].processIdentifier, 7);
    EXPECT_EQ(found[0].bundleIdentifier, QStringLiteral("com.example.Notes"));
    EXPECT_EQ(found[0].localizedName, QStringLiteral("Notizen ✎"));
    EXPECT_EQ(found[0].activationPolicy, ActivationPolicy::Regular);
    EXPECT_EQ(found[0].icon->nameOrPath, QStringLiteral("/Applications/Notes.app"));

    EXPECT_EQ(found[1].bundleIdentifier, std::nullopt);
    EXPECT_EQ(found[1].localizedName, std::nullopt);
    EXPECT_EQ(found[1].activationPolicy, ActivationPolicy::Accessory);
    EXPECT_EQ(found[1].icon->nameOrPath, QStringLiteral("/usr/libexec/tool"));

    EXPECT_EQ(found[2].localizedName, QString()); // an empty name is a name
    EXPECT_EQ(found[2].activationPolicy, ActivationPolicy::Prohibited);
    EXPECT_EQ(found[2].icon, std::nullopt);
}

TEST_F(AppKitWorkspaceTest, ActivatesTheFrontmostApplicationAgainWithNoOptions) {
    EXPECT_EQ(workspace.frontmostApplication(), std::nullopt);
    appKit.running = {{7, QStringLiteral("com.example.Notes")}};
    appKit.frontmost = 7;
    const auto notes = workspace.frontmostApplication();
    ASSERT_TRUE(notes);
    EXPECT_EQ(notes->bundleIdentifier, QStringLiteral("com.example.Notes"));

    workspace.activate(*notes);
    appKit.running.clear(); // one that has ended meanwhile
    workspace.activate(*notes);
    EXPECT_EQ(appKit.activations, (std::vector<std::pair<int, unsigned long>>{{7, 0}}));
}

TEST_F(AppKitWorkspaceTest, OpensAUrlAsItStandsAndTellsWhetherAnythingDid) {
    const QString pane = QStringLiteral(
        "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility");
    EXPECT_TRUE(workspace.openUrl(QUrl(pane)));
    EXPECT_TRUE(workspace.openUrl(QUrl(QStringLiteral("https://example.org/ä b?q=%2F#x"))));
    EXPECT_EQ(appKit.openedUrls,
              (std::vector{pane, QStringLiteral("https://example.org/%C3%A4%20b?q=%2F#x")}));
    appKit.opensUrls = false;
    EXPECT_FALSE(workspace.openUrl(QUrl(pane)));
}

} // namespace
