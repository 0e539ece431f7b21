#include "platform/Geometry.h"

#include <algorithm>

namespace platform {

namespace {

/// A point lies in the span that it begins, not in the one that it ends.
bool spansIntersect(double minA, double maxA, double minB, double maxB) {
    if (minA == maxA) {
        return minA == minB || (minA > minB && minA < maxB);
    }
    if (minB == maxB) {
        return minB >= minA && minB < maxA;
    }
    return std::max(minA, minB) < std::min(maxA, maxB);
}

} // namespace

bool Rect::intersects(const Rect& other) const {
    return spansIntersect(minX(), maxX(), other.minX(), other.maxX()) &&
           spansIntersect(minY(), maxY(), other.minY(), other.maxY());
}

} // namespace platform
