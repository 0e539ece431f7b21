#pragma once

#include "platform/Geometry.h"

namespace platform {

enum class ColorPanelMode { ColorList = 5 };

/// The process's shared colour panel. Main thread only.
class ColorPanel {
public:
    virtual ~ColorPanel() = default;

    virtual void setMode(ColorPanelMode mode) = 0;
    virtual Rect frame() = 0;
    /// Moves the panel's bottom-left corner.
    virtual void setFrameOrigin(Point origin) = 0;
};

} // namespace platform
