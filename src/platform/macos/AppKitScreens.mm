#include "platform/macos/AppKitScreens.h"

#include "platform/macos/CocoaValues.hh"

#include <AppKit/AppKit.h>

namespace platform {

namespace {

Screen toScreen(NSScreen* screen) {
    return {toRect(screen.frame), toRect(screen.visibleFrame)};
}

} // namespace

std::vector<Screen> AppKitScreens::screens() {
    @autoreleasepool {
        std::vector<Screen> result;
        for (NSScreen* screen in [NSScreen screens]) {
            result.push_back(toScreen(screen));
        }
        return result;
    }
}

std::optional<Screen> AppKitScreens::mainScreen() {
    @autoreleasepool {
        NSScreen* screen = [NSScreen mainScreen];
        return screen == nil ? std::nullopt : std::optional(toScreen(screen));
    }
}

Point AppKitScreens::pointerLocation() {
    return toPoint([NSEvent mouseLocation]);
}

} // namespace platform
