#include "app/MenuTracking.h"
#include "fakes/FakePlatform.h"

#include <QAction>
#include <QMenu>
#include <gtest/gtest.h>

#include <optional>

namespace {

/// A menu, and a timer that rests while the menu counts as open.
class MenuTrackingTest : public testing::Test {
protected:
    MenuTrackingTest() {
        poll_ = fakes.runLoop.scheduleRepeating(
            platform::Seconds(0.25), platform::RunLoopMode::Default, [this] { ++polls_; });
    }

    bool pollRests() {
        polls_ = 0;
        fakes.runLoop.advance(0.25);
        return polls_ == 0;
    }

    /// What a panel does that shows the menu in the program's stead.
    void openInPanel() { Q_EMIT menu.aboutToShow(); }

    fakes::FakePlatform fakes;
    QMenu menu;
    QAction* entry = menu.addAction(QStringLiteral("Entry"));
    std::optional<app::MenuTracking> tracking{std::in_place, menu, fakes.runLoop,
                                              fakes.pointerMonitor, platform::MenuClosing::Guessed};

private:
    core::Registration poll_;
    int polls_ = 0;
};

} // namespace

TEST_F(MenuTrackingTest, ThePollRestsWhileThePanelShowsTheMenuHoweverOftenItSaysSo) {
    EXPECT_FALSE(pollRests());
    openInPanel();
    openInPanel();
    EXPECT_TRUE(pollRests());
    Q_EMIT menu.aboutToHide();
    EXPECT_FALSE(pollRests());
    Q_EMIT menu.aboutToHide();
    openInPanel();
    EXPECT_TRUE(pollRests());
    tracking.reset();
    EXPECT_FALSE(pollRests());
}

TEST_F(MenuTrackingTest, WhateverShowsThatAPanelClosedTheMenuEndsTheRest) {
    openInPanel();
    entry->trigger();
    EXPECT_FALSE(pollRests());
    for (const auto reason :
         {platform::DismissReason::PointerPressed, platform::DismissReason::EscapePressed,
          platform::DismissReason::ActiveWindowChanged}) {
        openInPanel();
        EXPECT_TRUE(pollRests());
        fakes.pointerMonitor.events.notify({reason, {}});
        EXPECT_FALSE(pollRests());
    }
}

TEST_F(MenuTrackingTest, APanelThatNeverSaysClosedHoldsThePollForThreeSeconds) {
    openInPanel();
    fakes.runLoop.advance(2.7);
    EXPECT_TRUE(pollRests());
    fakes.runLoop.advance(0.1);
    EXPECT_FALSE(pollRests());
}

