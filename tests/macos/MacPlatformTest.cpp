#include "app/AppDelegate.h"

#include "fakes/FakePlatform.h"
#include "macos/NativeWindowRecord.h"
#include "macos/cocoa/AppKitTest.h"
#include "macos/fakes/c/AccessibilityFake.h"
#include "macos/fakes/c/EventsFake.h"
#include "macos/fakes/cocoa/ServicesFake.h"
#include "monitor/NotesAutomation.h"
#include "platform/Platform.h"
#include "platform/macos/ApplicationMenu.h"
#include "platform/macos/AxAccessibility.h"
#include "settings/AppSettingsManager.h"

#include <QAction>
#include <QApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

using appleFake::PostedEvent;
using platform::Rect;

namespace {

constexpr int notes = 42;
constexpr int note = 7;

/// The whole program on the whole layer, put together as on a Mac. Below it are recording fakes of
/// the system, beside it a clock that the test moves.
class MacPlatformTest : public AppKitTest {
protected:
    MacPlatformTest() {
        qputenv("HOME", home_.path().toLocal8Bit());
        cocoaFake::clearUserDefaults();
        nativeWindowRecord() = {};
        world = {};
        world.elements[notes]["AXFocusedUIElement"] = appleFake::element(note);
        world.elements[note] = {
            {"AXSelectedText", appleFake::string(u"")},
            {"AXSelectedTextRange", appleFake::range({4, 4})},
            {"AXBoundsForRange", appleFake::rectangle({{40, 100}, {80, 20}})},
        };
        appKit.running = {{notes, QStringLiteral("org.example.Notes")}};
        appKit.frontmost = notes;
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const Rect frame{0, 0, double(screen.width()), double(screen.height())};
        appKit.screens = {{frame, frame}};
        appKit.mainScreen = 0;

        system = platform::makePlatform(platform::makeProgramInstance());
        auto clock = std::make_unique<fakes::VirtualRunLoop>();
        runLoop = clock.get();
        system->runLoop = std::move(clock);
        // The toolkit's item looks for a tray of this system.
        system->statusItem = std::make_unique<fakes::FakeStatusItem>();
        events = {};
        events.clock = [this] { return runLoop->now(); };
        current.emplace(*system);
        settings.emplace(*system->userDefaults, *system->loginItem);
        delegate.emplace(*system, *settings);
        monitor::NotesAutomation::targetApplication.reset();
    }

    ~MacPlatformTest() override {
        delegate.reset();
        current.reset();
        system.reset();
        events = {};
        EXPECT_EQ(appleFake::liveObjects(), 0);
    }

    void select(std::u16string text) {
        world.elements[note]["AXSelectedText"] = appleFake::string(std::move(text));
        runLoop->advance(0.25 + 0.3);
    }

    static QWidget* visible(const QString& name) {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (widget->objectName() == name && widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }

    QTemporaryDir home_;
    appleFake::Accessibility& world = appleFake::accessibility();
    appleFake::Events& events = appleFake::events();
    std::unique_ptr<platform::Platform> system;
    fakes::VirtualRunLoop* runLoop = nullptr;
    std::optional<platform::CurrentPlatform> current;
    std::optional<settings::AppSettingsManager> settings;
    std::optional<app::AppDelegate> delegate;
};

TEST_F(MacPlatformTest,
       ASelectionBringsTheBarAndBoldPostsTwoEventsAtTheHidTapAfterATenthOfASecond) {
    delegate->applicationDidFinishLaunching();
    EXPECT_EQ(world.prompts, std::vector{true});
    EXPECT_EQ(nativeWindowRecord().calls, std::vector<std::string>{"accessory"});
    runLoop->advance(1);
    EXPECT_EQ(visible(QStringLiteral("bold")), nullptr);

    select(u"word");
    QWidget* const bold = visible(QStringLiteral("bold"));
    ASSERT_NE(bold, nullptr);
    const double height = appKit.screens.front().frame.height;
    const Rect bar = system->windowServer->frame(*bold->window());
    EXPECT_EQ(bar.minX(), 40);
    EXPECT_EQ(bar.minY(), height - 100 + 8);

    const double clicked = runLoop->now();
    QTest::mouseClick(bold, Qt::LeftButton);
    EXPECT_EQ(appKit.activations, (std::vector<std::pair<int, unsigned long>>{{notes, 0}}));
    const double posted = clicked + 0.1;
    EXPECT_EQ(events.posted,
              (std::vector<PostedEvent>{{kCGHIDEventTap, 11, true, kCGEventFlagMaskCommand, posted},
                                        {kCGHIDEventTap, 11, false, 0, posted}}));
    EXPECT_EQ(events.sources, std::vector{kCGEventSourceStateHIDSystemState});

    select(u"");
    runLoop->advance(0.3);
    EXPECT_EQ(visible(QStringLiteral("bold")), nullptr);
    const std::vector<std::string> expected{"accessory", "floating", "front", "material 13"};
    EXPECT_EQ(nativeWindowRecord().calls, expected);
}

TEST_F(MacPlatformTest, TheShortcutPressedElsewhereBringsTheBarInKeyboardMode) {
    settings->useKeyboardShortcut = true;
    settings->shortcutKeyCode = std::uint16_t{11};
    settings->shortcutModifiers = platform::modifierFlags::command;
    delegate->applicationDidFinishLaunching();
    select(u"word");
    cocoaFake::keyDownElsewhere({12, kCGEventFlagMaskCommand});
    EXPECT_EQ(visible(QStringLiteral("bold")), nullptr);
    // With Caps Lock on, and what a left-hand key adds.
    cocoaFake::keyDownElsewhere({11, kCGEventFlagMaskCommand | 0x10008});
    EXPECT_NE(visible(QStringLiteral("bold")), nullptr);
}

TEST_F(MacPlatformTest, AnApplicationThatHangsChangesNothingAndAPasswordFieldHidesTheBar) {
    system->accessibility =
        std::make_unique<platform::AxAccessibility>([this] { return world.now; });
    delegate->applicationDidFinishLaunching();
    select(u"word");
    ASSERT_NE(visible(QStringLiteral("bold")), nullptr);
    const auto answers = world.elements;
    world.elements[note]["AXSelectedText"] = appleFake::after(30, appleFake::string(u"late"));
    runLoop->advance(1);
    EXPECT_NE(visible(QStringLiteral("bold")), nullptr);

    world.elements = answers;
    world.now += std::chrono::seconds(10);
    world.elements[note]["AXSubrole"] = appleFake::string(u"AXSecureTextField");
    world.elements[note]["AXSelectedText"] = appleFake::string(u"secret");
    runLoop->advance(1);
    EXPECT_EQ(visible(QStringLiteral("bold")), nullptr);
}

TEST_F(MacPlatformTest, TheSettingsEntryOfTheApplicationsMenuOpensTheSettings) {
    delegate->applicationDidFinishLaunching();
    QAction& entry =
        std::static_pointer_cast<platform::ApplicationMenu>(system->foundation)->settings();
    EXPECT_EQ(entry.menuRole(), QAction::PreferencesRole);
    entry.trigger();
    QCoreApplication::processEvents();
    std::vector<QString> titles;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            titles.push_back(window->windowTitle());
        }
    }
    EXPECT_EQ(titles, std::vector{QStringLiteral("Corvane Quillet Settings")});
}

} // namespace
