#include "monitor/NotesAutomation.h"

#include "core/Fatal.h"
#include "core/Log.h"
#include "platform/Platform.h"

#include <limits>

namespace monitor {

namespace {

using platform::Seconds;

constexpr auto activationTime = Seconds(0.1);
constexpr auto colorActivationTime = Seconds(0.05);
constexpr auto colorPanelDelay = Seconds(0.3);
constexpr double panelMargin = 10;

constexpr std::uint64_t command = platform::modifierFlags::command;
constexpr std::uint64_t commandShift = command | platform::modifierFlags::shift;

constexpr Shortcut bodyText{11, commandShift};
constexpr Shortcut title{17, commandShift};
constexpr Shortcut colors{8, commandShift};

platform::KeyCode keyCode(std::int64_t key) {
    if (key < 0 || key > std::numeric_limits<platform::KeyCode>::max()) {
        core::fatal(QStringLiteral("%1 is no key code").arg(key));
    }
    return static_cast<platform::KeyCode>(key);
}

/// Where a panel goes that should stand at `wanted` but inside the visible frame.
platform::Point panelOrigin(platform::Point wanted, platform::Size panel,
                            const platform::Rect& visible) {
    platform::Point origin = wanted;
    if (visible.maxX() < wanted.x + panel.width) {
        origin.x = wanted.x - panel.width - panelMargin;
    }
    if (visible.maxY() < wanted.y + panel.height) {
        origin.y = visible.maxY() - panel.height - panelMargin;
    }
    if (origin.y < visible.minY()) {
        origin.y = visible.minY() + panelMargin;
    }
    return origin;
}

void placeColorPanel() {
    platform::Platform& system = platform::current();
    platform::ColorPanel& panel = *system.colorPanel;
    panel.setMode(platform::ColorPanelMode::ColorList);

    const platform::Point wanted = NotesAutomation::colorPanelPosition;
    if (wanted == platform::Point{}) {
        return;
    }
    const auto screen = system.screens->mainScreen();
    const platform::Rect frame = panel.frame();
    panel.setFrameOrigin(
        screen ? panelOrigin(wanted, {frame.width, frame.height}, screen->visibleFrame) : wanted);
}

} // namespace

std::optional<platform::RunningApplication> NotesAutomation::targetApplication;
platform::Point NotesAutomation::colorPanelPosition;

Shortcut NotesAutomation::formatShortcut(bar::TextFormat format) {
    using bar::TextFormat;
    switch (format) {
    case TextFormat::bold:
        return {11, command};
    case TextFormat::italic:
        return {34, command};
    case TextFormat::underline:
        return {32, command};
    case TextFormat::strikethrough:
        return {7, commandShift};
    case TextFormat::monospaced:
        return {46, commandShift};
    case TextFormat::heading:
        return title;
    case TextFormat::link:
        return {40, command};
    case TextFormat::bulletList:
        return {26, commandShift};
    case TextFormat::dashedList:
        return {28, commandShift};
    case TextFormat::numberedList:
        return {25, commandShift};
    case TextFormat::checklist:
        return {37, commandShift};
    // Positions, not characters: the four below carry ' ; / ] on a US keyboard.
    case TextFormat::increaseIndent:
        return {39, command};
    case TextFormat::decreaseIndent:
        return {41, command};
    case TextFormat::decreaseTextSize:
        return {44, command};
    case TextFormat::increaseTextSize:
        return {30, command};
    case TextFormat::removeFormatting:
        return bodyText;
    }
    core::fatal(u"a format that does not exist");
}

Shortcut NotesAutomation::headingShortcut(bar::HeadingLevel level) {
    switch (level) {
    case 1:
        return title;
    case 2:
        return {4, commandShift};
    case 3:
        return {38, commandShift};
    default:
        return bodyText;
    }
}

void NotesAutomation::simulateKeyboardShortcut(std::int64_t key, std::uint64_t modifiers) {
    if (!targetApplication) {
        core::log(u"simulateKeyboardShortcut skipped — no targetApplication set");
        return;
    }
    platform::Platform& system = platform::current();
    system.workspace->activate(*targetApplication);
    system.runLoop->sleep(activationTime);

    platform::KeyboardEvents& keyboard = *system.keyboardEvents;
    const auto source = keyboard.createSource(platform::EventSourceState::HidSystem);
    const platform::KeyCode code = keyCode(key);
    const auto keyDown = keyboard.createKeyEvent(source.get(), code, platform::KeyDirection::Down);
    if (!keyDown) {
        return;
    }
    // The modifiers travel as flags of the key-down event alone.
    keyDown->setFlags(modifiers);
    const auto keyUp = keyboard.createKeyEvent(source.get(), code, platform::KeyDirection::Up);
    if (!keyUp) {
        return;
    }
    keyboard.post(*keyDown, platform::EventTap::Hid);
    keyboard.post(*keyUp, platform::EventTap::Hid);
}

void NotesAutomation::showColorPicker() {
    if (!targetApplication) {
        core::log(u"No target application");
        return;
    }
    platform::Platform& system = platform::current();
    system.workspace->activate(*targetApplication);
    system.runLoop->sleep(colorActivationTime);
    simulateKeyboardShortcut(colors.key, colors.modifiers);
    system.runLoop->dispatchAfter(colorPanelDelay, placeColorPanel);
}

} // namespace monitor
