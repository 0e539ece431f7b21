#pragma once

#include "bar/TextFormat.h"
#include "platform/Geometry.h"
#include "platform/RunningApplication.h"

#include <cstdint>
#include <optional>

namespace monitor {

/// A virtual key code and the modifier flags that go with it.
struct Shortcut {
    std::int64_t key = 0;
    std::uint64_t modifiers = 0;

    bool operator==(const Shortcut&) const = default;
};

/// Posts keyboard shortcuts to the application in which the user selected text, on the current
/// platform. Main thread only: the waits block it on purpose, which also keeps two shortcuts from
/// interleaving.
class NotesAutomation {
public:
    NotesAutomation() = delete;

    /// The application that receives the shortcuts; empty until the bar was shown.
    static std::optional<platform::RunningApplication> targetApplication;

    /// Where the colour panel's bottom-left corner should go; (0, 0) means unset.
    static platform::Point colorPanelPosition;

    /// The shortcut with which the target application applies a format.
    static Shortcut formatShortcut(bar::TextFormat format);

    /// The same for a heading level; every level but 1, 2 and 3 makes body text.
    static Shortcut headingShortcut(bar::HeadingLevel level);

    /// Brings the target application to the front, waits 0.1 s and posts one shortcut: key-down
    /// with the flags, then key-up, or nothing at all. A key that is no 16-bit key code stops the
    /// process.
    static void simulateKeyboardShortcut(std::int64_t key, std::uint64_t modifiers);

    /// Has the target application open its colours, and 0.3 s later places this process's own
    /// colour panel.
    static void showColorPicker();
};

} // namespace monitor
