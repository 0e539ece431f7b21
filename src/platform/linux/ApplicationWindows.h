#pragma once

#include "platform/RunningApplication.h"
#include "platform/linux/PixelGeometry.h"

#include <optional>

namespace platform {

/// Where applications' windows really are, whatever the applications themselves say. Window
/// systems implement it; accessibility asks it.
class ApplicationWindows {
public:
    virtual ~ApplicationWindows() = default;

    /// The client area, without what the window manager draws around it, of the process's active
    /// window in device pixels.
    virtual std::optional<PixelRect> activeWindowClientArea(ProcessIdentifier process) = 0;

    /// The screens of the moment.
    virtual PixelGeometry pixelGeometry() = 0;
};

} // namespace platform
