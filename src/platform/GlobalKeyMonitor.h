#pragma once

#include "core/Registration.h"
#include "platform/KeyboardEvents.h"

#include <cstdint>
#include <functional>

namespace platform {

struct KeyDownEvent {
    KeyCode keyCode = 0;
    std::uint64_t modifierFlags = 0;
};

/// Key presses that go to other applications. They are seen, never swallowed.
class GlobalKeyMonitor {
public:
    using Handler = std::function<void(const KeyDownEvent&)>;

    virtual ~GlobalKeyMonitor() = default;

    /// Calls `handler` on the main thread for each key-down, without auto-repeats, for as long as
    /// the registration lives. Empty when the system refuses.
    virtual core::Registration addKeyDownMonitor(Handler handler) = 0;
};

} // namespace platform
