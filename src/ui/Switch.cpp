#include "ui/Switch.h"

#include "ui/FocusRing.h"
#include "ui/Theme.h"

#include <QPainter>

namespace ui {

namespace {

constexpr QSize trackSize{34, 20};
constexpr double gap = 2; // between the knob and the edge of the track

} // namespace

Switch::Switch() {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    FocusRing::attach(*this, [this] {
        return FocusRing::Shape{QRectF(rect()), trackSize.height() / 2.0};
    });
}

QSize Switch::sizeHint() const {
    return trackSize;
}

bool Switch::hitButton(const QPoint& position) const {
    return rect().contains(position);
}

void Switch::enterEvent(QEnterEvent*) {
    update();
}

void Switch::leaveEvent(QEvent*) {
    update();
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : 0.4);
    painter.setPen(Qt::NoPen);

    const QRectF track(rect());
    const double radius = track.height() / 2;
    painter.setBrush(color({isChecked() ? Color::Accent : Color::ControlTrack}, palette()));
    painter.drawRoundedRect(track, radius, radius);
    if (underMouse() && isEnabled()) {
        painter.setBrush(color({Color::Label, isDown() ? 0.16 : 0.07}, palette()));
        painter.drawRoundedRect(track, radius, radius);
    }

    // A knob that is held down reaches for the other side.
    const double diameter = track.height() - 2 * gap;
    const double width = diameter + (isDown() ? 3 : 0);
    const bool atRight = isChecked() == (layoutDirection() == Qt::LeftToRight);
    const QRectF knob(atRight ? track.right() - gap - width : track.left() + gap, track.top() + gap,
                      width, diameter);
    painter.setBrush(QColor(0, 0, 0, 40));
    painter.drawRoundedRect(knob.translated(0, 0.75), diameter / 2, diameter / 2);
    painter.setBrush(color({Color::ControlKnob}, palette()));
    painter.drawRoundedRect(knob, diameter / 2, diameter / 2);
}

} // namespace ui
