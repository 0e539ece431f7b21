#include "platform/linux/x11/WindowsOutOfSight.h"

#include "platform/linux/x11/WindowProperties.h"

#include <algorithm>

namespace platform {

std::vector<xcb_window_t> windowsOutOfSight(XcbDisplay& display) {
    constexpr std::uint32_t everyDesktop = 0xffffffff;
    const WindowProperties properties(display);
    const auto current = properties.number(display.root(), "_NET_CURRENT_DESKTOP");
    const auto inSight = [&](xcb_window_t window) {
        const auto states = properties.atoms(window, "_NET_WM_STATE");
        if (std::ranges::count(states, display.atom("_NET_WM_STATE_HIDDEN")) > 0) {
            return false;
        }
        const auto desktop = properties.number(window, "_NET_WM_DESKTOP");
        return !current || !desktop || *desktop == *current || *desktop == everyDesktop;
    };
    auto windows = properties.windows(display.root(), "_NET_CLIENT_LIST");
    std::erase_if(windows, inSight);
    return windows;
}

} // namespace platform
