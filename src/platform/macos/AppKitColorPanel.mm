#include "platform/macos/AppKitColorPanel.h"

#include "platform/macos/CocoaValues.hh"

#include <AppKit/AppKit.h>

namespace platform {

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
