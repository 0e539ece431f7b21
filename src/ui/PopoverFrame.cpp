#include "ui/PopoverFrame.h"

#include "ui/RoundedRectangle.h"
#include "ui/Theme.h"

#include <QPainter>

namespace ui {

namespace {

constexpr double lineWidth = 0.5;

/// An arrow that rises smoothly out of a horizontal edge to its tip.
QPainterPath arrowPath(double x, double base, double tip) {
    const double half = PopoverMetrics::arrowWidth / 2;
    QPainterPath path;
    path.moveTo(x - half, base);
    path.cubicTo(x - half * 0.45, base, x - half * 0.3, tip, x, tip);
    path.cubicTo(x + half * 0.3, tip, x + half * 0.45, base, x + half, base);
    path.closeSubpath();
    return path;
}

} // namespace

PopoverFrame::PopoverFrame(Element contents)
    : contents_(*contents.take().release()) {
    contents_.setParent(this);
}

platform::Size PopoverFrame::bodySize() const {
    const QSize size = naturalSize(contents_);
    return {static_cast<double>(size.width()), static_cast<double>(size.height())};
}

void PopoverFrame::setArrow(ArrowDirection direction, double x) {
    arrow_ = direction;
    arrowX_ = x;
    contents_.setGeometry(body().toRect());
    update();
}

void PopoverFrame::paintEvent(QPaintEvent*) {
    const QPainterPath path = outline();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, color({Color::PopoverMaterial}, palette()));
    painter.strokePath(path, QPen(color({Color::Separator}, palette()), lineWidth));
}

void PopoverFrame::resizeEvent(QResizeEvent*) {
    contents_.setGeometry(body().toRect());
}

QRectF PopoverFrame::body() const {
    const double top = arrow_ == ArrowDirection::Up ? PopoverMetrics::arrowHeight : 0;
    return {0, top, static_cast<double>(width()), height() - PopoverMetrics::arrowHeight};
}

QPainterPath PopoverFrame::outline() const {
    // The line lies inside the window.
    const double inset = lineWidth / 2;
    const QRectF rect = body().adjusted(inset, inset, -inset, -inset);
    const bool up = arrow_ == ArrowDirection::Up;
    const double base = up ? rect.top() : rect.bottom();
    const double tip = up ? inset : height() - inset;
    const QPainterPath shape = RoundedRectangle{PopoverMetrics::cornerRadius}.path(rect);
    return shape.united(arrowPath(arrowX_, base, tip));
}

} // namespace ui
