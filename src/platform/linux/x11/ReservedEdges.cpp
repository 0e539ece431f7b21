#include "platform/linux/x11/ReservedEdges.h"

#include <algorithm>
#include <array>
#include <limits>

namespace platform {

namespace {

using Side = ReservedEdge::Side;

int bounded(std::uint32_t number) {
    constexpr std::uint32_t largest = std::numeric_limits<std::int16_t>::max();
    return static_cast<int>(std::min(number, largest));
}

} // namespace

std::vector<ReservedEdge> reservedEdges(const std::vector<std::uint32_t>& strut) {
    constexpr std::array sides{Side::Left, Side::Right, Side::Top, Side::Bottom};
    const bool partial = strut.size() == 12;
    if (!partial && strut.size() != 4) {
        return {};
    }
    std::vector<ReservedEdge> edges;
    for (std::size_t side = 0; side < sides.size(); ++side) {
        if (strut[side] == 0) {
            continue;
        }
        ReservedEdge edge{sides[side], bounded(strut[side]), 0,
                          std::numeric_limits<std::int16_t>::max()};
        if (partial) {
            edge.start = bounded(strut[4 + 2 * side]);
            edge.end = bounded(strut[5 + 2 * side]);
        }
        edges.push_back(edge);
    }
    return edges;
}

PixelRect visibleFrame(const PixelRect& screen, const PixelRect& desktop,
                       const std::vector<ReservedEdge>& edges) {
    const int screenRight = screen.x + screen.width;
    const int screenBottom = screen.y + screen.height;
    int left = screen.x;
    int top = screen.y;
    int right = screenRight;
    int bottom = screenBottom;
    for (const auto& edge : edges) {
        const bool vertical = edge.side == Side::Left || edge.side == Side::Right;
        const int first = vertical ? screen.y : screen.x;
        const int last = (vertical ? screenBottom : screenRight) - 1;
        if (edge.start > last || edge.end < first) {
            continue;
        }
        switch (edge.side) {
        case Side::Left:
            if (desktop.x + edge.depth < screenRight) {
                left = std::max(left, desktop.x + edge.depth);
            }
            break;
        case Side::Right:
            if (desktop.x + desktop.width - edge.depth > screen.x) {
                right = std::min(right, desktop.x + desktop.width - edge.depth);
            }
            break;
        case Side::Top:
            if (desktop.y + edge.depth < screenBottom) {
                top = std::max(top, desktop.y + edge.depth);
            }
            break;
        case Side::Bottom:
            if (desktop.y + desktop.height - edge.depth > screen.y) {
                bottom = std::min(bottom, desktop.y + desktop.height - edge.depth);
            }
            break;
        }
    }
    const PixelRect visible{left, top, right - left, bottom - top};
    return visible.isEmpty() ? screen : visible;
}

} // namespace platform
