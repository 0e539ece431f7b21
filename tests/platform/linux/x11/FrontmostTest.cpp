#include "XWindowsFixture.h"

#include <QUrl>

namespace desktop {

namespace {

/// How many requests the program has sent on its connection so far, this one included.
unsigned int requests(platform::XcbConnection& connection) {
    const auto cookie = xcb_get_input_focus(connection.get());
    connection.reply<xcb_get_input_focus_reply_t>(cookie);
    return cookie.sequence;
}

} // namespace

TEST_F(XWindowsTest, TheActiveWindowsApplicationIsFrontmost) {
    const auto notes = installed();
    ASSERT_TRUE(waitForFrontmost(installedProcess));
    const auto application = workspace.frontmostApplication();
    EXPECT_EQ(application->bundleIdentifier, QStringLiteral("org.example.Notes"));
    EXPECT_EQ(application->localizedName, QStringLiteral("Notes"));
    EXPECT_EQ(application->icon, (platform::IconReference{QStringLiteral("notes")}));
    {
        const auto terminal = unknown();
        ASSERT_TRUE(waitForFrontmost(unknownProcess));
        EXPECT_EQ(frontmostIdentifier(), "Terminal");
        // Some programs name their windows only later.
        terminal->setClass("Notes");
        EXPECT_TRUE(eventually([&] { return frontmostIdentifier() == "org.example.Notes"; }));
    }
    EXPECT_TRUE(waitForFrontmost(installedProcess));
}

TEST_F(XWindowsTest, AskingWhileNothingChangedAsksTheServerNothing) {
    const auto notes = installed();
    ASSERT_TRUE(waitForFrontmost(installedProcess));
    // Until the window manager has announced everything about the new window.
    EXPECT_TRUE(eventually([&] {
        const auto before = requests(*connection);
        for (int poll = 0; poll < 100; ++poll) {
            EXPECT_EQ(frontmostProcess(), installedProcess);
        }
        return requests(*connection) == before + 1;
    }));
}

TEST_F(XWindowsTest, ActivatingBringsTheVeryWindowBackThatWasActiveLast) {
    const auto first = installed({50, 50, 200, 100});
    ASSERT_TRUE(waitForActive(*first));
    const auto second = installed({300, 50, 200, 100});
    ASSERT_TRUE(waitForActive(*second));
    const auto target = *workspace.frontmostApplication();
    const auto terminal = unknown();
    ASSERT_TRUE(waitForActive(*terminal));

    workspace.activate(target);
    EXPECT_TRUE(waitForActive(*second));
    EXPECT_EQ(windows.placeOfActiveWindow(installedProcess)->surface.width, 200);

    first->focus();
    ASSERT_TRUE(waitForActive(*first));
    activate(unknownProcess);
    ASSERT_TRUE(waitForActive(*terminal));
    workspace.activate(target);
    EXPECT_TRUE(waitForActive(*first));

    // The last one was put away: the uppermost that remains.
    activate(unknownProcess);
    ASSERT_TRUE(waitForActive(*terminal));
    first->hide();
    EXPECT_TRUE(eventually([&] {
        workspace.activate(target);
        return windows.activeWindow().current() == second->id();
    }));
    EXPECT_TRUE(workspace.keyTargetIsInFront());
    activate(4999999); // nobody: nothing happens
    EXPECT_EQ(frontmostProcess(), installedProcess);
    EXPECT_FALSE(workspace.keyTargetIsInFront());
}

TEST_F(XWindowsTest, ADialogIsWhatItsParentIs) {
    const auto notes = installed();
    XWindow dialog(*applications, {.process = installedProcess,
                                   .className = "Dialog",
                                   .type = "_NET_WM_WINDOW_TYPE_DIALOG",
                                   .parent = notes->id()});
    ASSERT_TRUE(waitForActive(dialog));
    EXPECT_EQ(frontmostIdentifier(), "org.example.Notes");
    // Some other program's dialog over the window, such as one that asks for a password, is not.
    XWindow foreign(*applications, {.process = unknownProcess,
                                    .className = "Dialog",
                                    .type = "_NET_WM_WINDOW_TYPE_DIALOG",
                                    .parent = notes->id()});
    foreign.focus();
    ASSERT_TRUE(waitForActive(foreign));
    EXPECT_EQ(frontmostIdentifier(), "Dialog");
}

TEST_F(XWindowsTest, AServerThatAnotherClientHoldsDelaysNobody) {
    const auto notes = installed();
    ASSERT_TRUE(waitForFrontmost(installedProcess));
    xcb_grab_server(user.display().get());
    settle(user.display());
    const auto start = std::chrono::steady_clock::now();
    screens.pointerLocation();
    screens.mainScreen();
    workspace.activate(*workspace.frontmostApplication());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(250));
    xcb_ungrab_server(user.display().get());
    settle(user.display());
    ASSERT_TRUE(eventually([&] { return connection->isAnswering(); }));
    EXPECT_TRUE(waitForFrontmost(installedProcess));
}

} // namespace desktop
