#include "ui/RoundedRectangle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ui {

namespace {

// The corner is a quarter of the curve |u|^n + |v|^n = 1; above n = 2 it meets the edges with no
// curvature at all.
constexpr double exponent = 3;
constexpr int steps = 16;

/// The quarter from (1, 0) to (0, 1).
std::array<QPointF, steps + 1> quarter() {
    std::array<QPointF, steps + 1> points;
    for (std::size_t i = 0; i <= steps; ++i) {
        const double angle = std::numbers::pi / 2 * static_cast<double>(i) / steps;
        points.at(i) = {std::pow(std::max(0.0, std::cos(angle)), 2 / exponent),
                        std::pow(std::sin(angle), 2 / exponent)};
    }
    points.back() = {0, 1};
    return points;
}

/// How far a corner reaches along its edges so that its diagonal inset is that of a circle.
double reach(double radius) {
    return radius * (1 - std::numbers::sqrt2 / 2) / (1 - std::pow(2, -1 / exponent));
}

} // namespace

QPainterPath RoundedRectangle::path(const QRectF& rect) const {
    QPainterPath path;
    const double extent = std::min({reach(cornerRadius), rect.width() / 2, rect.height() / 2});
    if (extent <= 0) {
        path.addRect(rect);
        return path;
    }
    static const auto curve = quarter();
    const auto corner = [&](QPointF centre, double horizontal, double vertical, bool reversed) {
        for (std::size_t i = 0; i < curve.size(); ++i) {
            const QPointF point = curve.at(reversed ? curve.size() - 1 - i : i);
            const QPointF place = centre + QPointF(point.x() * horizontal, point.y() * vertical);
            path.elementCount() == 0 ? path.moveTo(place) : path.lineTo(place);
        }
    };
    const double lower = corners == Corners::All ? extent : 0;
    corner(rect.topRight() + QPointF(-extent, extent), extent, -extent, true);
    corner(rect.bottomRight() - QPointF(lower, lower), lower, lower, false);
    corner(rect.bottomLeft() + QPointF(lower, -lower), -lower, lower, true);
    corner(rect.topLeft() + QPointF(extent, extent), -extent, -extent, false);
    path.closeSubpath();
    return path;
}

} // namespace ui
