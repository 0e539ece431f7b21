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

    // Where both margins cannot be kept, the left and the bottom one are. The limits stand first,
    // so that they also win against what is not a number.
    const double right = visible.maxX() - Metrics::placementWidth - Metrics::screenMargin;
    x = std::max(visible.minX() + Metrics::screenMargin, std::min(right, x));
    if (top < y + Metrics::height) {
        y = selection.minY() - Metrics::height - Metrics::gapToSelection;
    }
    y = std::max(visible.minY() + Metrics::screenMargin, std::min(top - Metrics::height, y));
    return {x, y};
}

} // namespace bar
