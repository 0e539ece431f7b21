#include "platform/Geometry.h"

#include <algorithm>

namespace platform {

namespace {

bool spansIntersect(double minA, double maxA, double minB, double maxB) {
    const double from = std::max(minA, minB);
    const double to = std::min(maxA, maxB);
    if (from < to) {
        return true;
    }
    const bool oneIsAPoint = minA == maxA || minB == maxB;
    return oneIsAPoint && from == to;
}

} // namespace

bool Rect::intersects(const Rect& other) const {
    return spansIntersect(minX(), maxX(), other.minX(), other.maxX()) &&
           spansIntersect(minY(), maxY(), other.minY(), other.maxY());
}

} // namespace platform
