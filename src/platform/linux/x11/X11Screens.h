#pragma once

#include "platform/Screens.h"
#include "platform/linux/x11/EwmhWindows.h"

namespace platform {

/// Screens and the pointer of an X server.
class X11Screens final : public Screens {
public:
    explicit X11Screens(EwmhWindows& windows)
        : windows_(windows) {}

    std::vector<Screen> screens() override;
    std::optional<Screen> mainScreen() override;
    Point pointerLocation() override;

private:
    EwmhWindows& windows_;
    /// Answered again when the server does not say where the pointer is.
    PixelPoint lastPointer_;
};

} // namespace platform
