#pragma once

#include "platform/linux/PixelGeometry.h"

#include <cstdint>
#include <vector>

namespace platform {

/// What one panel reserves along an edge of the whole desktop, as _NET_WM_STRUT_PARTIAL gives it:
/// a depth in pixels from that edge, and the part of the edge to which it applies.
struct ReservedEdge {
    enum class Side { Left, Right, Top, Bottom };

    Side side = Side::Top;
    int depth = 0;
    /// First and last pixel along the edge.
    int start = 0;
    int end = 0;

    bool operator==(const ReservedEdge&) const = default;
};

/// The edges of a _NET_WM_STRUT_PARTIAL (twelve numbers) or a _NET_WM_STRUT (four). Anything else
/// yields none.
std::vector<ReservedEdge> reservedEdges(const std::vector<std::uint32_t>& strut);

/// What the panels leave of one screen of a desktop of that size. A panel that belongs to a screen
/// further in, whose depth would take this screen whole, takes nothing of it.
PixelRect visibleFrame(const PixelRect& screen, const PixelRect& desktop,
                       const std::vector<ReservedEdge>& edges);

} // namespace platform
