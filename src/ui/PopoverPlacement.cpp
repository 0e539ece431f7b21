#include "ui/PopoverPlacement.h"

#include <algorithm>

namespace ui {

PopoverPlacement placePopover(const platform::Rect& anchor, platform::Size body,
                              const std::optional<platform::Screen>& screen) {
    using Metrics = PopoverMetrics;
    const double height = body.height + Metrics::arrowHeight;
    const double tip = anchor.minX() + anchor.width / 2;
    double x = tip - body.width / 2;
    double y = anchor.minY() - height;
    auto arrow = ArrowDirection::Up;
    if (screen) {
        const platform::Rect& visible = screen->visibleFrame;
        const bool roomBelow = y >= visible.minY() + Metrics::screenMargin;
        const bool roomAbove = anchor.maxY() + height <= visible.maxY() - Metrics::screenMargin;
        if (!roomBelow && roomAbove) {
            y = anchor.maxY();
            arrow = ArrowDirection::Down;
        }
        x = std::max(std::min(x, visible.maxX() - body.width - Metrics::screenMargin),
                     visible.minX() + Metrics::screenMargin);
    }
    // The arrow does not leave the straight part of its edge, even where the anchor is cut off.
    const double reach = Metrics::cornerRadius * 1.5 + Metrics::arrowWidth / 2;
    const double arrowX = std::max(std::min(tip - x, body.width - reach), reach);
    return {{x, y, body.width, height}, arrow, arrowX};
}

} // namespace ui
