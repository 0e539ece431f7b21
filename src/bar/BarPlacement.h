#pragma once

#include "platform/Screens.h"

#include <optional>

namespace bar {

/// The bar window's measures, in points.
struct BarMetrics {
    /// What placement reserves, and what a window that exists is given.
    static constexpr double placementWidth = 660;
    /// The width with which the window is made.
    static constexpr double creationWidth = 590;
    static constexpr double height = 44;
    static constexpr double gapToSelection = 8;
    static constexpr double screenMargin = 8;
    static constexpr double colorPanelGap = 10;
    static constexpr double cornerRadius = 10;
};

/// Where the bar's bottom-left corner goes for a selection, in global points: above the selection,
/// or below it when there is no room, inside the visible frame of the screen that shows it. Without
/// a screen it stands above the selection, wherever that is.
platform::Point barOrigin(const platform::Rect& selection,
                          const std::optional<platform::Screen>& screen);

} // namespace bar
