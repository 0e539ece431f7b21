#pragma once

#include "platform/RunningApplication.h"
#include "platform/linux/PixelGeometry.h"

#include <optional>

namespace platform {

/// Where a window is, in device pixels. `surface` is all that the application draws into, without
/// what the window manager draws around it; `visible` leaves out a shadow that the application
/// draws there itself.
struct WindowPlace {
    PixelRect surface;
    PixelRect visible;
};

/// Where applications' windows really are, whatever the applications themselves say. Window
/// systems implement it; accessibility asks it.
class ApplicationWindows {
public:
    virtual ~ApplicationWindows() = default;

    /// The process's active window.
    virtual std::optional<WindowPlace> placeOfActiveWindow(ProcessIdentifier process) = 0;

    /// The screens of the moment.
    virtual PixelGeometry pixelGeometry() = 0;
};

} // namespace platform
