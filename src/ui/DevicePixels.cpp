#include "ui/DevicePixels.h"

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

/// What is on a boundary but for the rounding of numbers is on it.
constexpr double grain = 1e-6;

} // namespace

QPointF onDevicePixels(const QPainter& painter, QPointF point) {
    const QTransform device = painter.deviceTransform();
    const QPointF pixel = device.map(point);
    return device.inverted().map(QPointF(std::round(pixel.x()), std::round(pixel.y())));
}

QRectF wholeDevicePixels(const QPainter& painter, const QRectF& rect) {
    const QTransform device = painter.deviceTransform();
    const QRectF pixels = device.mapRect(rect);
    const QPointF first(std::ceil(pixels.left() - grain), std::ceil(pixels.top() - grain));
    const QPointF last(std::floor(pixels.right() + grain), std::floor(pixels.bottom() + grain));
    return device.inverted().mapRect(QRectF(first, last));
}

QRectF hairline(const QPainter& painter, const QRectF& rect) {
    const QTransform device = painter.deviceTransform();
    const QRectF pixels = device.mapRect(rect);
    const QPointF first(std::ceil(pixels.left() - grain), std::ceil(pixels.top() - grain));
    const QSizeF size(std::max(1.0, std::floor(pixels.width() + grain)),
                      std::max(1.0, std::floor(pixels.height() + grain)));
    return device.inverted().mapRect(QRectF(first, size));
}

} // namespace ui
