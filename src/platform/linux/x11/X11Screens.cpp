#include "platform/linux/x11/X11Screens.h"

namespace platform {

namespace {

Screen inPoints(const PixelGeometry& geometry, const PixelScreen& screen) {
    return {geometry.globalPoints(screen.frame, screen),
            geometry.globalPoints(screen.visibleFrame, screen)};
}

} // namespace

std::vector<Screen> X11Screens::screens() {
    const auto geometry = windows_.pixelGeometry();
    std::vector<Screen> result;
    for (const auto& screen : geometry.screens()) {
        result.push_back(inPoints(geometry, screen));
    }
    return result;
}

std::optional<Screen> X11Screens::mainScreen() {
    const auto geometry = windows_.pixelGeometry();
    const auto* screen = geometry.primaryScreen();
    if (const auto active = windows_.activeWindow().current()) {
        if (const auto area = windows_.properties().clientArea(*active)) {
            screen =
                geometry.screenNearest({area->x + area->width / 2, area->y + area->height / 2});
        }
    }
    return screen == nullptr ? std::nullopt : std::optional(inPoints(geometry, *screen));
}

Point X11Screens::pointerLocation() {
    auto& connection = windows_.connection();
    const auto pointer = connection.reply<xcb_query_pointer_reply_t>(
        xcb_query_pointer(connection.get(), connection.root()));
    if (pointer) {
        lastPointer_ = {pointer->root_x, pointer->root_y};
    }
    return windows_.pixelGeometry().globalPoint(lastPointer_);
}

} // namespace platform
