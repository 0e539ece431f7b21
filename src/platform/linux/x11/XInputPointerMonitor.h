#pragma once

#include "platform/PointerMonitor.h"
#include "platform/linux/PixelGeometry.h"

#include <functional>
#include <memory>

namespace platform {

class XcbConnection;
class XInputEvents;

/// Watches the pointers' buttons, the Escape key and the active window.
class XInputPointerMonitor final : public PointerMonitor {
public:
    using GlobalPoint = std::function<Point(PixelPoint)>;

    /// `connection` outlives the registrations. With `events` null only the active window is
    /// watched. `globalPoint` translates from the root window's pixels.
    XInputPointerMonitor(XcbConnection& connection, std::shared_ptr<XInputEvents> events,
                         GlobalPoint globalPoint);

    core::Registration addDismissMonitor(Handler handler) override;

private:
    XcbConnection& connection_;
    std::shared_ptr<XInputEvents> events_;
    GlobalPoint globalPoint_;
};

} // namespace platform
