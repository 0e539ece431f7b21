#include "app/AppDelegate.h"

#include "bar/FormattingBarController.h"
#include "core/NotificationCenter.h"
#include "fakes/FakePlatform.h"
#include "monitor/NotesAutomation.h"
#include "monitor/NotesMonitor.h"
#include "settings/AppSettingsManager.h"
#include "ui/TitledWindow.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using monitor::NotesAutomation;
using platform::Rect;

namespace {

constexpr auto commandShift = platform::modifierFlags::command | platform::modifierFlags::shift;

platform::RunningApplication application(platform::ProcessIdentifier process) {
    platform::RunningApplication application;
    application.processIdentifier = process;
    application.bundleIdentifier = QStringLiteral("org.example.Notes");
    return application;
}

/// The whole program on a platform of fakes, with a notes application in front.
class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest() {
        fakes.workspace.frontmost = application(42);
        NotesAutomation::targetApplication.reset();
        NotesAutomation::colorPanelPosition = {};
    }

    void launch() { delegate->applicationDidFinishLaunching(); }

    /// Selects in the application in front and waits until the bar must be there.
    void select(const QString& text) {
        fakes.accessibility.text = text;
        fakes.runLoop.advance(0.25 + 0.3);
    }

    QAction& entry(int index) const { return *fakes.statusItem.menu->actions().at(index); }

    /// Clicks a button of the bar, named after its symbol.
    void click(const QString& symbol) {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (widget->objectName() == symbol && widget->isVisible()) {
                QTest::mouseClick(widget, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << symbol.toStdString();
    }

    long count(const char* line) const {
        return std::count(fakes.record.begin(), fakes.record.end(), line);
    }

    bool barIsVisible() const {
        const auto last = std::find_if(fakes.record.rbegin(), fakes.record.rend(), [](auto& line) {
            return line == "order front" || line == "order out";
        });
        return last != fakes.record.rend() && *last == "order front";
    }

    fakes::FakePlatform fakes;
    settings::AppSettingsManager settings{fakes.userDefaults, fakes.loginItem};
    std::optional<app::AppDelegate> delegate{std::in_place, fakes.platform, settings};
};

} // namespace

TEST_F(AppDelegateTest, LaunchShowsTheItemBeforeMonitoringAndStartsTheUpdaterThreeSecondsLater) {
    launch();
    EXPECT_TRUE(fakes.statusItem.hasIcon);
    EXPECT_EQ(fakes.statusItem.description, QStringLiteral("Corvane Quillet"));
    ASSERT_NE(fakes.statusItem.menu, nullptr);
    EXPECT_EQ(entry(2).text(), QStringLiteral("Status: Ready"));
    EXPECT_EQ(fakes.record, fakes::Record{"become accessory"});
    EXPECT_EQ(fakes.accessibility.trustQuestions, std::vector{platform::TrustPrompt::Shown});

    fakes.runLoop.advance(2.999);
    EXPECT_EQ(fakes.updater.starts, 0);
    fakes.runLoop.advance(0.001);
    EXPECT_EQ(fakes.updater.starts, 1);
    fakes.runLoop.advance(60);
    EXPECT_EQ(fakes.updater.starts, 1);
    entry(8).trigger();
    EXPECT_EQ(fakes.updater.checks, 1);
}

TEST_F(AppDelegateTest, ASelectionBringsTheBarAndAClickPostsToWhereItWasMade) {
    launch();
    fakes.accessibility.text = QStringLiteral("word");
    fakes.runLoop.advance(0.54);
    EXPECT_FALSE(barIsVisible());
    fakes.runLoop.advance(0.01);
    EXPECT_TRUE(barIsVisible());
    ASSERT_TRUE(NotesAutomation::targetApplication);

    // Whoever is in front by now.
    fakes.workspace.frontmost = application(7);
    fakes.record.clear();
    const double clicked = fakes.runLoop.now();
    click(QStringLiteral("bold"));
    EXPECT_EQ(fakes.record, (fakes::Record{"activate 42", "key down 11", "key up 11"}));
    ASSERT_EQ(fakes.keyboardEvents.posted.size(), 2U);
    EXPECT_EQ(fakes.keyboardEvents.posted[0].flags, platform::modifierFlags::command);
    EXPECT_EQ(fakes.keyboardEvents.posted[1].flags, std::nullopt);
    EXPECT_NEAR(fakes.keyboardEvents.posted[0].time, clicked + 0.1, 1e-9);
    fakes.runLoop.advance(1);
    EXPECT_EQ(count("order out"), 0);
}

TEST_F(AppDelegateTest, TerminationStopsThePollAndHidesTheBar) {
    delegate->applicationWillTerminate(); // before the launch there is nothing to do
    EXPECT_TRUE(fakes.record.empty());
    launch();
    select(QStringLiteral("word"));
    EXPECT_TRUE(barIsVisible());
    delegate->applicationWillTerminate();
    const int calls = fakes.accessibility.calls;
    fakes.runLoop.advance(0.3);
    EXPECT_EQ(fakes.accessibility.calls, calls);
    EXPECT_FALSE(barIsVisible());
}

TEST_F(AppDelegateTest, OffersTheSystemsSettingsWithoutAccess) {
    fakes.accessibility.trusted = false;
    launch();
    fakes.alerts.answer = 1001;
    entry(4).trigger();
    EXPECT_TRUE(fakes.workspace.opened.empty());
    fakes.alerts.answer = 1000;
    entry(4).trigger();
    EXPECT_EQ(fakes.workspace.opened,
              std::vector{QUrl(QStringLiteral("x-apple.systempreferences:com.apple.preference."
                                              "security?Privacy_Accessibility"))});

    const platform::Alert& alert = fakes.alerts.shown.front();
    EXPECT_EQ(alert.style, platform::AlertStyle::Warning);
    EXPECT_EQ(alert.messageText, QStringLiteral("Accessibility Access Required"));
    EXPECT_EQ(
        alert.informativeText,
        QStringLiteral("Corvane Quillet needs accessibility access to detect text selection and "
                       "provide formatting features.\n\nPlease grant access in System Settings > "
                       "Privacy & Security > Accessibility."));
    EXPECT_EQ(alert.buttons,
              (QStringList{QStringLiteral("Open System Settings"), QStringLiteral("Cancel")}));

    EXPECT_EQ(fakes.accessibility.trustQuestions.back(), platform::TrustPrompt::Hidden);
    fakes.workspace.opens = false;
    entry(4).trigger();
    EXPECT_EQ(fakes.accessibility.trustQuestions.back(), platform::TrustPrompt::Shown);
}
