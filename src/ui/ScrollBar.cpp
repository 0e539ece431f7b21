#include "ui/ScrollBar.h"

#include "ui/Theme.h"

#include <QCommonStyle>
#include <QPainter>
#include <QStyleOptionSlider>

namespace ui {

namespace {

constexpr int normalWidth = 12;
constexpr int narrowWidth = 8;
constexpr int shortestKnob = 32;
constexpr int endGap = 4;

/// Knows no buttons at the ends: the whole length is the knob's.
class WithoutArrows final : public QCommonStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        switch (metric) {
        case PM_ScrollBarExtent:
            return 0;
        case PM_ScrollBarSliderMin:
            return shortestKnob;
        default:
            return QCommonStyle::pixelMetric(metric, option, widget);
        }
    }
};

} // namespace

ScrollBar::ScrollBar(Width width)
    : QScrollBar(Qt::Vertical)
    , width_(width == Width::Narrow ? narrowWidth : normalWidth) {
    auto* ownStyle = new WithoutArrows;
    ownStyle->setParent(this);
    setStyle(ownStyle);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setFocusPolicy(Qt::NoFocus);
}

QSize ScrollBar::sizeHint() const {
    return {width_, 40};
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
    const double thickness = width_ / 2.0;
    const QRectF knob(width() - thickness * 1.5, handle.top() + endGap, thickness,
                      handle.height() - 2 * endGap);
    painter.drawRoundedRect(knob, thickness / 2, thickness / 2);
}

} // namespace ui
