#pragma once

#include "platform/Geometry.h"

#include <optional>
#include <vector>

namespace platform {

struct Screen {
    Rect frame;
    /// The frame without what the desktop reserves for its panels.
    Rect visibleFrame;
};

/// Screens and the pointer, in points. Main thread only.
class Screens {
public:
    virtual ~Screens() = default;

    /// In the system's order; the primary screen's frame has its origin at (0, 0).
    virtual std::vector<Screen> screens() = 0;

    /// The screen with the active window, else the primary one; empty when there is no screen.
    virtual std::optional<Screen> mainScreen() = 0;

    virtual Point pointerLocation() = 0;
};

/// The first screen whose full frame shares a point with `rect`, else the main screen.
std::optional<Screen> screenShowing(Screens& screens, const Rect& rect);

} // namespace platform
