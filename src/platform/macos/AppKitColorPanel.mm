#include "platform/macos/AppKitColorPanel.h"

#include "platform/macos/CocoaValues.hh"

#include <AppKit/AppKit.h>

namespace platform {

static_assert(static_cast<NSInteger>(ColorPanelMode::ColorList) == NSColorPanelModeColorList);

void AppKitColorPanel::setMode(ColorPanelMode mode) {
    [NSColorPanel sharedColorPanel].mode = static_cast<NSColorPanelMode>(mode);
}

Rect AppKitColorPanel::frame() {
    return toRect([NSColorPanel sharedColorPanel].frame);
}

void AppKitColorPanel::setFrameOrigin(Point origin) {
    [[NSColorPanel sharedColorPanel] setFrameOrigin:NSMakePoint(origin.x, origin.y)];
}

} // namespace platform
