#pragma once

#include "platform/Geometry.h"

#include <vector>

namespace platform {

/// Device pixels of the X root window: origin at its top-left corner, y downwards.
struct PixelPoint {
    int x = 0;
    int y = 0;

    bool operator==(const PixelPoint&) const = default;
};

struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const PixelRect&) const = default;
    bool isEmpty() const { return width <= 0 || height <= 0; }
};

/// One screen as X has it and the ratio by which the toolkit scales it.
struct PixelScreen {
    PixelRect frame;
    PixelRect visibleFrame;
    double devicePixelRatio = 1;
    bool primary = false;
};

/// Translates between device pixels and points on a desktop of several screens, each with a ratio
/// of its own. A screen keeps its top-left corner in both, as in the toolkit; the primary screen's
/// top-left corner is the origin of top-left points, its bottom-left corner that of global points.
/// With no screen at all pixels and points are the same.
class PixelGeometry {
public:
    PixelGeometry() = default;
    explicit PixelGeometry(std::vector<PixelScreen> screens);

    const std::vector<PixelScreen>& screens() const { return screens_; }

    /// Points with the origin at the primary screen's top-left corner, y downwards.
    /// What spans two screens, or lies on none, is scaled like the screen nearest to its centre.
    Rect topLeftPoints(const PixelRect& pixels) const;

    /// Global points, origin at the primary screen's bottom-left corner, y upwards.
    Rect globalPoints(const PixelRect& pixels) const;
    /// The same for what is known to belong to one of the screens.
    Rect globalPoints(const PixelRect& pixels, const PixelScreen& screen) const;
    Point globalPoint(PixelPoint pixel) const;

    /// Rounded to whole pixels. Numbers that are none count as 0, and what lies far outside every
    /// screen is brought within the range of X's coordinates.
    PixelRect pixels(const Rect& global) const;

    /// The screen that holds a pixel, else the nearest one; null when there is no screen.
    const PixelScreen* screenNearest(PixelPoint pixel) const;
    /// The primary screen, else the first one; null when there is no screen.
    const PixelScreen* primaryScreen() const;

private:
    Rect topLeftPoints(const PixelRect& pixels, const PixelScreen& screen) const;
    Rect flipped(const Rect& topLeft) const;

    std::vector<PixelScreen> screens_;
};

} // namespace platform
