#pragma once

#include "core/Registration.h"
#include "platform/Geometry.h"

#include <functional>

namespace platform {

/// What dismisses a floating window that never has the keyboard.
enum class DismissReason { PointerPressed, EscapePressed, ActiveWindowChanged };

struct DismissEvent {
    DismissReason reason = DismissReason::PointerPressed;
    /// Where the pointer was pressed.
    Point location;
};

/// Tells of presses anywhere on the screens. They are seen, never swallowed.
class PointerMonitor {
public:
    using Handler = std::function<void(const DismissEvent&)>;

    virtual ~PointerMonitor() = default;

    /// Calls `handler` on the main thread for as long as the registration lives.
    virtual core::Registration addDismissMonitor(Handler handler) = 0;
};

} // namespace platform
