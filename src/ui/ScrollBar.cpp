#include "ui/ScrollBar.h"

#include "ui/Theme.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

namespace ui {

namespace {

constexpr int barWidth = 12;
constexpr double thickness = 6;

} // namespace

ScrollBar::ScrollBar()
    : QScrollBar(Qt::Vertical) {
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setFocusPolicy(Qt::NoFocus);
}

QSize ScrollBar::sizeHint() const {
    return {barWidth, 40};
}

void ScrollBar::enterEvent(QEnterEvent*) {
    update();
}

void ScrollBar::leaveEvent(QEvent*) {
    update();
}

void ScrollBar::paintEvent(QPaintEvent*) {
    if (minimum() == maximum()) {
        return;
    }
    // Where the style lets the pointer take hold of it, so that what is seen is what is dragged.
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF handle =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool active = underMouse() || isSliderDown();
    painter.setBrush(color({Color::Label, active ? 0.5 : 0.3}, palette()));
    const QRectF knob(width() - thickness - 3, handle.top() + 2, thickness, handle.height() - 4);
    painter.drawRoundedRect(knob, thickness / 2, thickness / 2);
}

} // namespace ui
