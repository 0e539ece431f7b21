#include "app/CorvaneQuilletApp.h"

#include "fakes/FakePlatform.h"
#include "settings/AppSettingsManager.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <gtest/gtest.h>

TEST(CorvaneQuilletApp, RunsUntilQuitIsChosenAndTerminatesItsDelegate) {
    fakes::FakePlatform fakes;
    fakes.accessibility.text = QStringLiteral("word");
    fakes.workspace.frontmost.emplace().bundleIdentifier = QStringLiteral("org.example.Notes");
    settings::AppSettingsManager settings(fakes.userDefaults, fakes.loginItem);
    app::CorvaneQuilletApp application(
        std::make_unique<app::AppDelegate>(fakes.platform, settings));
    QTimer::singleShot(0, qApp, [&] {
        ASSERT_NE(fakes.statusItem.menu, nullptr);
        fakes.runLoop.advance(1);
        const int callsWhileRunning = fakes.accessibility.calls;
        EXPECT_GT(callsWhileRunning, 0);
        fakes.statusItem.menu->actions().last()->trigger();
    });
    EXPECT_EQ(application.run(), 0);
    const int calls = fakes.accessibility.calls;
    fakes.runLoop.advance(1);
    EXPECT_EQ(fakes.accessibility.calls, calls);
    EXPECT_EQ(fakes.record.back(), "order out");
}

