#pragma once

#include "platform/Screens.h"

#include <optional>

namespace ui {

enum class ArrowDirection { Up, Down };

/// Where a popover stands and where its arrow points.
struct PopoverPlacement {
    /// Global points, the arrow included.
    platform::Rect frame;
    ArrowDirection arrow = ArrowDirection::Up;
    /// The tip's distance from the frame's left edge.
    double arrowX = 0;

    bool operator==(const PopoverPlacement&) const = default;
};

/// A popover's measures, in points.
struct PopoverMetrics {
    static constexpr double arrowHeight = 10;
    static constexpr double arrowWidth = 24;
    static constexpr double cornerRadius = 10;
    static constexpr double screenMargin = 8;
};

/// Below `anchor` with the arrow's tip at the middle of its bottom edge; above it when there is no
/// room below and there is above. Kept inside the visible frame of the screen that shows the
/// anchor, when there is one. `body` is the popover's size without its arrow.
PopoverPlacement placePopover(const platform::Rect& anchor, platform::Size body,
                              const std::optional<platform::Screen>& screen);

} // namespace ui
