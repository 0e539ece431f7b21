#pragma once

#include "platform/linux/x11/XcbDisplay.h"

#include <optional>

namespace platform {

/// The window by which a window manager shows that it lives, as the root window names it. One that
/// crashed leaves the name behind.
std::optional<xcb_window_t> windowManagerSign(XcbDisplay& display);

/// Whether a window is the sign of a window manager that still runs.
bool isLivingSign(XcbDisplay& display, xcb_window_t sign);

/// Asks the window manager to bring a window forward, as a request of the user, which is granted at
/// once. It is sent `over` the connection whose earlier requests the manager must have seen before.
void requestActivation(XcbDisplay& display, xcb_connection_t* over, xcb_window_t window,
                       xcb_timestamp_t time);

} // namespace platform
