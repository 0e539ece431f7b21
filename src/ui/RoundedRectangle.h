#pragma once

#include <QPainterPath>

namespace ui {

/// A rectangle whose corners are continuous: their curvature grows out of the straight edges
/// instead of starting at once, as it does at the end of a circle's arc.
struct RoundedRectangle {
    enum class Corners { All, Top };

    /// In points. The corner reaches the same diagonal inset as a circle of this radius.
    double cornerRadius = 0;
    /// The others are square.
    Corners corners = Corners::All;

    QPainterPath path(const QRectF& rect) const;
};

} // namespace ui
