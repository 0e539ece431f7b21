#include "app/AppDelegate.h"

#include "fakes/FakePlatform.h"
#include "macos/fakes/c/AccessibilityFake.h"
#include "macos/fakes/c/EventsFake.h"
#include "monitor/NotesAutomation.h"
#include "platform/macos/AxAccessibility.h"
#include "platform/macos/CGEventKeyboardEvents.h"
#include "settings/AppSettingsManager.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

using appleFake::PostedEvent;
using platform::Rect;

namespace {

constexpr int notes = 42;
constexpr int note = 7;

/// The whole program with the layer's reading and posting in it, on recording fakes of the system.
class MacMainJobTest : public testing::Test {
protected:
    MacMainJobTest() {
        world = {};
        world.elements[notes]["AXFocusedUIElement"] = appleFake::element(note);
        world.elements[note] = {
            {"AXSelectedText", appleFake::string(u"")},
            {"AXSelectedTextRange", appleFake::range({4, 4})},
            {"AXBoundsForRange", appleFake::rectangle({{900, 100}, {80, 20}})},
        };
        events = {};
        events.clock = [this] { return fakes.runLoop.now(); };
        platform::RunningApplication frontmost;
        frontmost.processIdentifier = notes;
        frontmost.bundleIdentifier = QStringLiteral("org.example.Notes");
        fakes.workspace.frontmost = frontmost;
        fakes.platform.accessibility =
            std::make_unique<platform::AxAccessibility>([this] { return world.now; });
        fakes.platform.keyboardEvents = std::make_unique<platform::CGEventKeyboardEvents>();
        monitor::NotesAutomation::targetApplication.reset();
        delegate->applicationDidFinishLaunching();
    }

    ~MacMainJobTest() override {
        delegate.reset();
        fakes.platform.accessibility.reset();
        fakes.platform.keyboardEvents.reset();
        events = {};
        EXPECT_EQ(appleFake::liveObjects(), 0);
    }

    void select(std::u16string text) {
        world.elements[note]["AXSelectedText"] = appleFake::string(std::move(text));
        fakes.runLoop.advance(0.25 + 0.3);
    }

    QWidget* visible(const QString& name) const {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (widget->objectName() == name && widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }

    void click(const QString& name) {
        QWidget* const button = visible(name);
        ASSERT_NE(button, nullptr) << name.toStdString();
        QTest::mouseClick(button, Qt::LeftButton);
    }

    appleFake::Accessibility& world = appleFake::accessibility();
    appleFake::Events& events = appleFake::events();
    fakes::FakePlatform fakes;
    settings::AppSettingsManager settings{fakes.userDefaults, fakes.loginItem};
    std::optional<app::AppDelegate> delegate{std::in_place, fakes.platform, settings};
};

TEST_F(MacMainJobTest, ASelectionBringsTheBarAndBoldPostsTwoEventsAtTheHidTapAfterATenthOfASecond) {
    EXPECT_EQ(world.prompts, std::vector{true});
    fakes.runLoop.advance(1);
    EXPECT_EQ(visible(QStringLiteral("bold")), nullptr);

    select(u"word");
    QWidget* const bold = visible(QStringLiteral("bold"));
    ASSERT_NE(bold, nullptr);
    const Rect bar = fakes.windowServer.frames.at(bold->window());
    const Rect selection{900, 1080 - 100 - 20, 80, 20};
    EXPECT_EQ(bar.minY(), selection.maxY() + 8);
    EXPECT_EQ(bar.minX(), selection.minX());

    const double clicked = fakes.runLoop.now();
    click(QStringLiteral("bold"));
    EXPECT_EQ(fakes.record.back(), "activate 42");
    const double posted = clicked + 0.1;
    EXPECT_EQ(events.posted,
              (std::vector<PostedEvent>{{kCGHIDEventTap, 11, true, kCGEventFlagMaskCommand, posted},
                                        {kCGHIDEventTap, 11, false, 0, posted}}));
    EXPECT_EQ(events.sources, std::vector{kCGEventSourceStateHIDSystemState});

    select(u"");
    fakes.runLoop.advance(0.3);
    EXPECT_EQ(visible(QStringLiteral("bold")), nullptr);
}

TEST_F(MacMainJobTest, AnApplicationThatHangsChangesNothingAndAPasswordFieldHidesTheBar) {
    select(u"word");
    ASSERT_NE(visible(QStringLiteral("bold")), nullptr);
    const auto answers = world.elements;
    world.elements[note]["AXSelectedText"] = appleFake::after(30, appleFake::string(u"late"));
    fakes.runLoop.advance(1);
    EXPECT_NE(visible(QStringLiteral("bold")), nullptr);

    world.elements = answers;
    world.now += std::chrono::seconds(10);
    world.elements[note]["AXSubrole"] = appleFake::string(u"AXSecureTextField");
    world.elements[note]["AXSelectedText"] = appleFake::string(u"secret");
    fakes.runLoop.advance(1);
    EXPECT_EQ(visible(QStringLiteral("bold")), nullptr);
}

} // namespace
