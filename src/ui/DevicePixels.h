#pragma once

#include <QPainter>
#include <QRectF>

namespace ui {

/// Where the device has several pixels to a point, or one and a half, these keep edges on the
/// boundaries of its pixels. All coordinates are the painter's.

/// The nearest place that begins a pixel.
QPointF onDevicePixels(const QPainter& painter, QPointF point);

/// The whole pixels inside a rectangle.
QRectF wholeDevicePixels(const QPainter& painter, const QRectF& rect);

/// The same place and length for a line, and as many whole pixels across as fit, at least one:
/// lines of one width are alike wherever they stand.
QRectF hairline(const QPainter& painter, const QRectF& rect);

} // namespace ui
