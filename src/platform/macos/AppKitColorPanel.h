#pragma once

#include "platform/ColorPanel.h"

namespace platform {

/// The shared colour panel of AppKit. Nothing here shows it.
class AppKitColorPanel final : public ColorPanel {
public:
    void setMode(ColorPanelMode mode) override;
    Rect frame() override;
    void setFrameOrigin(Point origin) override;
};

} // namespace platform
