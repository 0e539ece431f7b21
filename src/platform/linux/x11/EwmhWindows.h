#pragma once

#include "platform/linux/ApplicationWindows.h"
#include "platform/linux/x11/ActiveWindow.h"
#include "platform/linux/x11/WorkAreas.h"
#include "platform/linux/x11/XcbConnection.h"

#include <memory>
#include <optional>

namespace platform {

/// Applications' windows and the screens under an X server. Main thread only.
class EwmhWindows final : public ApplicationWindows {
public:
    explicit EwmhWindows(std::shared_ptr<XcbConnection> connection);

    std::optional<WindowPlace> placeOfActiveWindow(ProcessIdentifier process) override;
    PixelGeometry pixelGeometry() override;

    XcbConnection& connection() { return *connection_; }
    ActiveWindow& activeWindow() { return activeWindow_; }
    const WindowProperties& properties() const { return properties_; }

private:
    std::shared_ptr<XcbConnection> connection_;
    WindowProperties properties_;
    ActiveWindow activeWindow_;
    WorkAreas workAreas_;
};

} // namespace platform
