#pragma once

#include "platform/GlobalKeyMonitor.h"

#include <functional>
#include <memory>

namespace platform {

class XcbConnection;
class XInputEvents;

/// Watches the keyboards while another application has the focus.
class XInputKeyMonitor final : public GlobalKeyMonitor {
public:
    /// `connection` outlives the registrations. `events` may be null: then there is nothing to
    /// watch. `ownApplicationIsActive` tells whether keys go to this program.
    XInputKeyMonitor(XcbConnection& connection, std::shared_ptr<XInputEvents> events,
                     std::function<bool()> ownApplicationIsActive);

    core::Registration addKeyDownMonitor(Handler handler) override;

private:
    XcbConnection& connection_;
    std::shared_ptr<XInputEvents> events_;
    std::function<bool()> ownApplicationIsActive_;
};

} // namespace platform
