#include "monitor/NotesMonitor.h"

#include "core/Log.h"
#include "settings/AppSettingsManager.h"

#include <algorithm>
#include <cmath>

namespace monitor {

namespace {

using platform::Rect;
using platform::RunLoopMode;
using platform::Seconds;

constexpr auto pollInterval = Seconds(0.25);
constexpr platform::Size pointerRectSize{200, 20};

bool isFinite(const Rect& rect) {
    return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.width) &&
           std::isfinite(rect.height);
}

std::optional<platform::Screen> primaryScreen(platform::Screens& screens) {
    const auto all = screens.screens();
    const auto primary = std::ranges::find_if(all, [](const platform::Screen& screen) {
        return screen.frame.x == 0 && screen.frame.y == 0;
    });
    return primary != all.end() ? std::optional(*primary) : screens.mainScreen();
}

} // namespace

NotesMonitor::NotesMonitor()
    : NotesMonitor(platform::current(), settings::AppSettingsManager::shared()) {}

NotesMonitor::NotesMonitor(platform::Platform& platform, settings::AppSettingsManager& settings)
    : platform_(platform)
    , settings_(settings) {}

void NotesMonitor::startMonitoring() {
    if (!platform_.accessibility->isProcessTrusted(platform::TrustPrompt::Shown)) {
        core::log(u"Accessibility permissions not granted");
        return;
    }
    startSelectionPolling();
    setupGlobalHotkey();
}

void NotesMonitor::stopMonitoring() {
    selectionPollingTimer_.reset();
    appearanceDelayTimer_.reset();
}

void NotesMonitor::startSelectionPolling() {
    selectionPollingTimer_ = platform_.runLoop->scheduleRepeating(
        pollInterval, RunLoopMode::Default, [this] { pollForSelection(); });
}

void NotesMonitor::pollForSelection() {
    const auto frontmost = platform_.workspace->frontmostApplication();
    if (!frontmost || frontmost->bundleIdentifier == platform_.systemInfo->bundleIdentifier()) {
        return;
    }
    if (!settings_.isAppAllowed(frontmost->bundleIdentifier)) {
        clearIfSomethingWasSelected();
        return;
    }

    platform::Accessibility& accessibility = *platform_.accessibility;
    const Element focused = accessibility.focusedElement(
        accessibility.applicationElement(frontmost->processIdentifier));
    if (!focused) {
        return;
    }
    const auto text = accessibility.selectedText(focused);
    if (!text) {
        clearIfSomethingWasSelected();
        return;
    }
    if (*text == lastSelectedText_) {
        return;
    }

    if (text->isEmpty()) {
        isBarShowing_ = false;
        clearIfSomethingWasSelected();
        return;
    }
    lastSelectedText_ = *text;
    hasSelection_ = true;
    targetApplication_ = frontmost;
    currentSelectionRect_ = selectionRect(focused);
    if (settings_.useKeyboardShortcut) {
        return;
    }

    cancelAppearance();
    isBarShowing_ = false;
    const Seconds delay(settings_.appearanceDelay);
    if (delay > Seconds::zero()) {
        pendingSelectionRect_ = currentSelectionRect_;
        scheduleAppearance(delay);
    } else {
        isBarShowing_ = true;
        report(true, currentSelectionRect_);
    }
}

void NotesMonitor::clearIfSomethingWasSelected() {
    if (lastSelectedText_.isEmpty()) {
        return;
    }
    lastSelectedText_.clear();
    hasSelection_ = false;
    currentSelectionRect_ = {};
    cancelAppearance();
    report(false, {});
}

void NotesMonitor::cancelAppearance() {
    appearanceDelayTimer_.reset();
    pendingSelectionRect_ = {};
}

void NotesMonitor::scheduleAppearance(Seconds delay) {
    appearanceDelayTimer_ = platform_.runLoop->scheduleOnce(delay, RunLoopMode::Common, [this] {
        if (hasSelection_ && !pendingSelectionRect_.isZero()) {
            isBarShowing_ = true;
            report(true, pendingSelectionRect_);
        }
    });
}

Rect NotesMonitor::selectionRect(const Element& element) {
    if (const TextRange range = platform_.accessibility->selectedTextRange(element)) {
        const Rect bounds = getSelectionBounds(element, range);
        if (!bounds.isZero()) {
            return fromTopLeft(bounds);
        }
    }
    const platform::Point pointer = platform_.screens->pointerLocation();
    return {pointer.x - pointerRectSize.width / 2, pointer.y, pointerRectSize.width,
            pointerRectSize.height};
}

Rect NotesMonitor::getSelectionBounds(const Element& element, const TextRange& range) {
    const auto bounds = platform_.accessibility->boundsForRange(element, range);
    // An infinite rectangle is how some applications say that there is none.
    return bounds && isFinite(*bounds) ? *bounds : Rect{};
}

Rect NotesMonitor::fromTopLeft(const Rect& bounds) {
    const auto screen = primaryScreen(*platform_.screens);
    if (!screen) {
        return bounds;
    }
    return {bounds.x, screen->frame.height - bounds.y - bounds.height, bounds.width, bounds.height};
}

void NotesMonitor::setupGlobalHotkey() {
    eventMonitor_ =
        platform_.globalKeyMonitor->addKeyDownMonitor([this](const platform::KeyDownEvent& event) {
            if (!settings_.useKeyboardShortcut) {
                return;
            }
            // The event's flags alone are masked: a stored value with other bits never matches.
            const bool matches = event.keyCode == settings_.shortcutKeyCode &&
                                 (event.modifierFlags & platform::modifierFlags::mask) ==
                                     settings_.shortcutModifiers;
            if (matches && hasSelection_ && !currentSelectionRect_.isZero()) {
                report(true, currentSelectionRect_);
            }
        });
}

void NotesMonitor::report(bool visible, Rect rect) {
    // Copies: the handler may set another one, or end the monitor.
    if (const auto handler = onSelectionChanged) {
        handler(visible, rect);
    }
}

} // namespace monitor
