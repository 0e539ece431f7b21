#include "monitor/NotesMonitor.h"

#include "fakes/FakePlatform.h"
#include "settings/AppSettingsManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using platform::Rect;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStdout;

namespace {

constexpr double poll = 0.25;
constexpr std::uint64_t commandShift = 0x120000;
constexpr std::uint64_t capsLock = 0x10000;
const Rect bounds{100, 100, 80, 20};
const Rect onScreen{100, 960, 80, 20}; // on the fakes' screen, 1080 points high

struct Report {
    bool visible = false;
    Rect rect;
    double time = 0;
};

class NotesMonitorTest : public testing::Test {
protected:
    NotesMonitorTest() {
        front(1, QStringLiteral("org.example.Notes"));
        platform.accessibility.bounds = bounds;
        start(monitor.emplace(platform.platform, settings));
    }

    void start(monitor::NotesMonitor& started) {
        started.onSelectionChanged = [this](bool visible, const Rect& rect) {
            reports.push_back({visible, rect, platform.runLoop.now()});
        };
        started.startMonitoring();
    }
    void front(platform::ProcessIdentifier process, std::optional<QString> identifier) {
        platform::RunningApplication application;
        application.processIdentifier = process;
        application.bundleIdentifier = std::move(identifier);
        platform.workspace.frontmost = application;
    }
    void select(const QString& text) { platform.accessibility.text = text; }
    void pass(double seconds) { platform.runLoop.advance(seconds); }
    void selectAndShow() {
        select(QStringLiteral("word"));
        pass(poll + 0.3);
        ASSERT_EQ(reports.size(), 1U);
        reports.clear();
    }
    void expectOneReport(bool visible, const Rect& rect) const {
        ASSERT_EQ(reports.size(), 1U);
        EXPECT_EQ(reports[0].visible, visible);
        EXPECT_EQ(reports[0].rect, rect);
    }

    fakes::FakePlatform platform;
    settings::AppSettingsManager settings{platform.userDefaults, platform.loginItem};
    std::vector<Report> reports;
    std::optional<monitor::NotesMonitor> monitor;
};

} // namespace

TEST_F(NotesMonitorTest, WithoutThePermissionNothingEverStarts) {
    platform.accessibility.trusted = false;
    platform.accessibility.trustQuestions.clear();
    monitor.emplace(platform.platform, settings);
    CaptureStdout();
    start(*monitor);
    EXPECT_EQ(GetCapturedStdout(), "Quillet: Accessibility permissions not granted\n");
    EXPECT_EQ(platform.accessibility.trustQuestions, std::vector{platform::TrustPrompt::Shown});
    platform.accessibility.trusted = true;
    select(QStringLiteral("word"));
    pass(10);
    EXPECT_EQ(platform.accessibility.calls, 0);
}

TEST_F(NotesMonitorTest, ReportsASelectionOnceItStayedTheSameForTheDelay) {
    pass(0.1);
    select(QStringLiteral("word"));
    platform.accessibility.calls = 0;
    pass(0.44);
    EXPECT_EQ(platform.accessibility.calls, 4 + 2) << "a poll that sees no change reads less";
    EXPECT_TRUE(reports.empty()) << "first polled at 0.25 s";
    pass(1);
    expectOneReport(true, onScreen);
    EXPECT_DOUBLE_EQ(reports[0].time, 0.55);
    EXPECT_EQ(monitor->targetApplication()->processIdentifier, 1);
    EXPECT_EQ(monitor->currentSelectionRect(), onScreen);
    EXPECT_TRUE(monitor->hasSelection());
}

TEST_F(NotesMonitorTest, EachChangeOfTheTextRestartsTheDelay) {
    settings.appearanceDelay = 0.5;
    for (int letters = 1; letters <= 4; ++letters) {
        select(QString(letters, u'x'));
        platform.accessibility.bounds = Rect{100, 100, 10.0 * letters, 20};
        pass(poll);
    }
    EXPECT_TRUE(reports.empty());
    pass(0.5);
    expectOneReport(true, {100, 960, 40, 20});
    EXPECT_DOUBLE_EQ(reports[0].time, 4 * poll + 0.5);

    reports.clear();
    select(QStringLiteral("other"));
    pass(poll);
    EXPECT_TRUE(reports.empty()) << "a bar that shows is not hidden, but moved later";
    pass(0.5);
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_TRUE(reports[0].visible);
}

TEST_F(NotesMonitorTest, ADelayThatIsNotPositiveShowsTheBarInThePollThatSawTheSelection) {
    double moment = 0;
    for (const double delay : {0.0, -1.0, std::nan("")}) {
        settings.appearanceDelay = delay;
        select(QString::number(++moment));
        reports.clear();
        pass(poll);
        expectOneReport(true, onScreen);
        EXPECT_DOUBLE_EQ(reports[0].time, moment * poll);
    }
}

TEST_F(NotesMonitorTest, DeselectingHidesTheBarAndCallsAPendingAppearanceOff) {
    select(QStringLiteral("word"));
    pass(poll);
    select(QString());
    pass(poll);
    expectOneReport(false, {});
    EXPECT_FALSE(monitor->hasSelection());
    EXPECT_TRUE(monitor->currentSelectionRect().isZero());
    EXPECT_TRUE(monitor->targetApplication()) << "the target is still known";
    pass(5);
    EXPECT_EQ(reports.size(), 1U);
}

TEST_F(NotesMonitorTest, WhatAPollFindsDecidesWhetherTheBarStaysOrGoes) {
    struct Row {
        const char* sentence;
        std::function<void()> change;
        bool hides;
        int readsPerPoll;
    };
    const auto own = platform.systemInfo.identifier;
    const std::vector<Row> rows{
        {"no frontmost application: stays", [&] { platform.workspace.frontmost.reset(); }, false,
         0},
        {"the program itself: stays", [&] { front(2, own); }, false, 0},
        {"an application that is not allowed: goes", [&] { settings.useAllApps = false; }, true, 0},
        {"an application without identifier: goes", [&] { front(3, std::nullopt); }, true, 0},
        {"an unreadable focus: stays", [&] { platform.accessibility.focusReadable = false; }, false,
         1},
        {"unreadable text: goes", [&] { platform.accessibility.text.reset(); }, true, 2},
        {"the same text elsewhere: stays where it is",
         [&] {
             platform.accessibility.bounds = Rect{5, 5, 5, 5};
         },
         false, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.sentence);
        settings.useAllApps = true;
        platform.accessibility.focusReadable = true;
        platform.accessibility.bounds = bounds;
        front(1, QStringLiteral("org.example.Notes"));
        select(QString());
        pass(poll);
        reports.clear();
        selectAndShow();

        row.change();
        platform.accessibility.calls = 0;
        pass(3 * poll);
        EXPECT_EQ(platform.accessibility.calls, 3 * row.readsPerPoll);
        EXPECT_EQ(reports.size(), row.hides ? 1U : 0U) << "told once, not at each poll";
        EXPECT_EQ(monitor->hasSelection(), !row.hides);
        EXPECT_EQ(monitor->currentSelectionRect(), row.hides ? Rect{} : onScreen);
    }
}

TEST_F(NotesMonitorTest, WithoutBoundsTheBarGoesToThePointer) {
    platform.screens.pointer = {500, 300};
    settings.appearanceDelay = 0.0;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const Rect atPointer{400, 300, 200, 20};
    const std::vector<std::pair<std::optional<Rect>, Rect>> rows{
        {std::nullopt, atPointer},
        {Rect{}, atPointer},
        {Rect{std::nan(""), 0, 10, 10}, atPointer},
        {Rect{infinity, infinity, 0, 0}, atPointer},
        {Rect{0, 0, 0, 20}, Rect{0, 1060, 0, 20}},
        {Rect{1e300, -1e300, 1, 0}, Rect{1e300, 1e300, 1, 0}},
    };
    int number = 0;
    for (const auto& [answer, expected] : rows) {
        platform.accessibility.bounds = answer;
        select(QString::number(++number));
        reports.clear();
        pass(poll);
        SCOPED_TRACE(number);
        expectOneReport(true, expected);
    }
    platform.accessibility.bounds = bounds;
    platform.accessibility.rangeReadable = false;
    platform.accessibility.calls = 0;
    select(QStringLiteral("no range"));
    reports.clear();
    pass(poll);
    expectOneReport(true, atPointer);
    EXPECT_EQ(platform.accessibility.calls, 3);
}

TEST_F(NotesMonitorTest, BoundsAreFlippedAtThePrimaryScreen) {
    settings.appearanceDelay = 0.0;
    const platform::Screen left{{-1000, 0, 1000, 600}, {}};
    const platform::Screen primary{{0, 0, 1920, 1080}, {}};
    const platform::Screen above{{0, 1080, 1000, 700}, {}};
    const auto rectWith = [&](std::vector<platform::Screen> all,
                              std::optional<platform::Screen> main) {
        platform.screens.all = std::move(all);
        platform.screens.main = std::move(main);
        select(QStringLiteral("%1").arg(platform.runLoop.now()));
        pass(poll);
        return monitor->currentSelectionRect();
    };
    EXPECT_EQ(rectWith({left, above, primary}, left), onScreen);
    EXPECT_EQ(rectWith({left, above}, above), (Rect{100, 580, 80, 20}))
        << "no screen at the origin: the main one";
    EXPECT_EQ(rectWith({}, std::nullopt), bounds) << "no screen: as they are";
}

TEST_F(NotesMonitorTest, InKeyboardModeOnlyTheShortcutShowsTheBar) {
    settings.useKeyboardShortcut = true;
    settings.shortcutKeyCode = std::uint16_t{40};
    settings.shortcutModifiers = commandShift;
    auto& keys = platform.globalKeyMonitor;
    keys.press(40, commandShift);
    EXPECT_TRUE(reports.empty()) << "nothing is selected";

    select(QStringLiteral("word"));
    pass(5);
    EXPECT_TRUE(reports.empty());
    keys.press(41, commandShift);
    keys.press(40, commandShift | 0x40000);
    keys.press(40, 0x100000);
    EXPECT_TRUE(reports.empty()) << "another key, one modifier more, one less";
    keys.press(40, commandShift | capsLock | 0x100);
    expectOneReport(true, onScreen);

    reports.clear();
    select(QStringLiteral("another"));
    platform.accessibility.bounds = Rect{0, 0, 10, 10};
    pass(1);
    EXPECT_TRUE(reports.empty()) << "other text neither hides nor moves the bar";
    keys.press(40, commandShift);
    expectOneReport(true, {0, 1070, 10, 10});

    reports.clear();
    select(QString());
    pass(poll);
    expectOneReport(false, {});
}

TEST_F(NotesMonitorTest, TheShortcutNeedsKeyboardModeAndAStoredValueWithinTheMask) {
    selectAndShow();
    platform.globalKeyMonitor.press(3, 0x180100);
    EXPECT_TRUE(reports.empty()) << "automatic mode";
    settings.useKeyboardShortcut = true;
    platform.globalKeyMonitor.press(3, 0x180100);
    platform.globalKeyMonitor.press(3, 0x180000);
    EXPECT_TRUE(reports.empty()) << "the default never matches";
    settings.shortcutModifiers = std::uint64_t{0x180000};
    platform.globalKeyMonitor.press(3, 0x180100);
    EXPECT_EQ(reports.size(), 1U) << "the settings are read at each press";
}

TEST_F(NotesMonitorTest, StoppingEndsTheTimersButLeavesTheShortcut) {
    settings.shortcutModifiers = commandShift;
    select(QStringLiteral("word"));
    pass(poll);
    monitor->stopMonitoring();
    platform.accessibility.calls = 0;
    pass(5);
    EXPECT_TRUE(reports.empty());
    EXPECT_EQ(platform.accessibility.calls, 0);
    settings.useKeyboardShortcut = true;
    platform.globalKeyMonitor.press(3, commandShift);
    expectOneReport(true, onScreen);

    monitor.reset();
    platform.globalKeyMonitor.press(3, commandShift);
    EXPECT_EQ(reports.size(), 1U) << "a monitor that is gone reports nothing";
}

