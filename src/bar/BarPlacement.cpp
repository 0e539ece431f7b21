#include "bar/BarPlacement.h"

#include <algorithm>

namespace bar {

platform::Point barOrigin(const platform::Rect& selection,
                          const std::optional<platform::Screen>& screen) {
    using Metrics = BarMetrics;
    double x = selection.minX();
    double y = selection.maxY() + Metrics::gapToSelection;
    if (!screen) {
        return {x, y};
    }
    const platform::Rect& visible = screen->visibleFrame;
    const double top = visible.maxY() - Metrics::screenMargin;

    // Where both margins cannot be kept, the left and the bottom one are.
    x = std::min(x, visible.maxX() - Metrics::placementWidth - Metrics::screenMargin);
    x = std::max(x, visible.minX() + Metrics::screenMargin);
    if (top < y + Metrics::height) {
        y = selection.minY() - Metrics::height - Metrics::gapToSelection;
    }
    y = std::min(y, top - Metrics::height);
    y = std::max(y, visible.minY() + Metrics::screenMargin);
    return {x, y};
}

} // namespace bar
