#pragma once

#include "platform/linux/x11/XcbDisplay.h"

#include <vector>

namespace platform {

/// The applications' windows that the user has put away: minimised, or on another desktop. Some
/// compositing managers keep them mapped, below everything else, to show them small.
std::vector<xcb_window_t> windowsOutOfSight(XcbDisplay& display);

} // namespace platform
