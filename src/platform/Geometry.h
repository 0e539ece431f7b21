#pragma once

namespace platform {

/// Points and rectangles are double-precision points in the window system's global coordinates:
/// origin at the bottom-left corner of the primary screen, y upwards. The one exception is what
/// Accessibility::boundsForRange answers.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rect&) const = default;

    double minX() const { return x; }
    double minY() const { return y; }
    double maxX() const { return x + width; }
    double maxY() const { return y + height; }

    /// The zero rectangle means "none".
    bool isZero() const { return *this == Rect{}; }

    /// Whether the two share a point. A rectangle without width or height, such as that of a
    /// caret, intersects what it lies in; rectangles that only touch do not intersect.
    bool intersects(const Rect& other) const;

    /// Whether the point lies inside; a point on the upper or right edge does not.
    bool contains(Point point) const {
        return point.x >= minX() && point.x < maxX() && point.y >= minY() && point.y < maxY();
    }
};

} // namespace platform
