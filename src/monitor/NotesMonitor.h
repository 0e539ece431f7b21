#pragma once

#include "platform/Platform.h"

#include <QString>

#include <functional>
#include <optional>

namespace settings {
class AppSettingsManager;
}

namespace monitor {

/// Finds out four times a second what the user has selected in the frontmost application, and
/// reports when the bar should show for it. Main thread only; ends all it started when destroyed.
class NotesMonitor {
public:
    /// True with a rectangle in global points asks for the bar near it; false with the zero
    /// rectangle asks for it to go.
    using SelectionHandler = std::function<void(bool visible, const platform::Rect& rect)>;

    /// On the current platform, with the shared settings.
    NotesMonitor();
    /// Both must outlive the monitor.
    NotesMonitor(platform::Platform& platform, settings::AppSettingsManager& settings);

    SelectionHandler onSelectionChanged;

    /// Asks for the accessibility permission, and without it does nothing for good.
    void startMonitoring();

    /// Ends polling and a pending appearance. The global shortcut still shows the bar for a
    /// selection that is remembered.
    void stopMonitoring();

    /// Where the last non-empty selection was found.
    const std::optional<platform::RunningApplication>& targetApplication() const {
        return targetApplication_;
    }
    /// Global points; zero when nothing is selected.
    const platform::Rect& currentSelectionRect() const { return currentSelectionRect_; }
    bool hasSelection() const { return hasSelection_; }

private:
    using Element = platform::Accessibility::Element;
    using TextRange = platform::Accessibility::TextRange;

    void startSelectionPolling();
    void pollForSelection();
    void clearIfSomethingWasSelected();
    void cancelAppearance();
    void scheduleAppearance(platform::Seconds delay);
    platform::Rect selectionRect(const Element& element);
    platform::Rect getSelectionBounds(const Element& element, const TextRange& range);
    platform::Rect fromTopLeft(const platform::Rect& bounds);
    void setupGlobalHotkey();
    void report(bool visible, platform::Rect rect);

    platform::Platform& platform_;
    settings::AppSettingsManager& settings_;

    std::optional<platform::RunningApplication> targetApplication_;
    platform::Rect currentSelectionRect_;
    bool hasSelection_ = false;
    core::Registration selectionPollingTimer_;
    QString lastSelectedText_;
    /// Of the target application; nobody has set it yet.
    [[maybe_unused]] Element currentApp_;
    core::Registration appearanceDelayTimer_;
    platform::Rect pendingSelectionRect_;
    /// Whether the bar was asked for, as far as that follows from polls alone. Nobody reads it yet.
    [[maybe_unused]] bool isBarShowing_ = false;
    core::Registration eventMonitor_;
};

} // namespace monitor
