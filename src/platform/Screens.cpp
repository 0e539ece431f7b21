#include "platform/Screens.h"

#include <algorithm>

namespace platform {

std::optional<Screen> screenShowing(Screens& screens, const Rect& rect) {
    const std::vector<Screen> all = screens.screens();
    const auto found = std::ranges::find_if(
        all, [&](const Screen& screen) { return screen.frame.intersects(rect); });
    return found == all.end() ? screens.mainScreen() : std::optional(*found);
}

} // namespace platform
