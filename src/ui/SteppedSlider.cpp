#include "ui/SteppedSlider.h"

#include "ui/FocusRing.h"
#include "ui/SliderAccessible.h"
#include "ui/Theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

constexpr double knobDiameter = 18;
constexpr double grooveHeight = 4;
constexpr int wholeHeight = 26;
constexpr double marksBelow = 22; // the marks' top
constexpr double markHeight = 4;
constexpr int page = 5; // stops

} // namespace

SteppedSlider::SteppedSlider(Binding<double> value, SliderOptions options)
    : binding_(std::move(value))
    , options_(std::move(options))
    , shown_(std::clamp(binding_->get(), options_.minimum, options_.maximum)) {
    SliderAccessible::install();
    setAccessibleName(options_.accessibilityLabel);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    FocusRing::attach(*this, [this] {
        return FocusRing::Shape{QRectF(0, 0, width(), knobDiameter), knobDiameter / 2};
    });
    observation_ = binding_->observe([this](double next) { show(next); });
}

void SteppedSlider::choose(double value) {
    chooseStop(nearestStop(value));
}

QSize SteppedSlider::sizeHint() const {
    return {200, wholeHeight};
}

QSize SteppedSlider::minimumSizeHint() const {
    return {80, wholeHeight};
}

void SteppedSlider::enterEvent(QEnterEvent*) {
    update();
}

void SteppedSlider::leaveEvent(QEvent*) {
    update();
}

void SteppedSlider::keyPressEvent(QKeyEvent* event) {
    const int forward = layoutDirection() == Qt::LeftToRight ? 1 : -1;
    switch (event->key()) {
    case Qt::Key_Right:
        return moveBy(forward);
    case Qt::Key_Left:
        return moveBy(-forward);
    case Qt::Key_Up:
        return moveBy(1);
    case Qt::Key_Down:
        return moveBy(-1);
    case Qt::Key_PageUp:
        return moveBy(page);
    case Qt::Key_PageDown:
        return moveBy(-page);
    case Qt::Key_Home:
        return chooseStop(0);
    case Qt::Key_End:
        return chooseStop(stops() - 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void SteppedSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        dragged_ = true;
        choose(valueAt(event->position().x()));
        update();
    }
}

void SteppedSlider::mouseMoveEvent(QMouseEvent* event) {
    if (dragged_) {
        choose(valueAt(event->position().x()));
    }
}

void SteppedSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        dragged_ = false;
        update();
    }
}

void SteppedSlider::wheelEvent(QWheelEvent* event) {
    // A wheel scrolls the page; a slider under the pointer must not change on the way.
    event->ignore();
}

void SteppedSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : 0.4);
    painter.setPen(Qt::NoPen);

    const QRectF all = groove().adjusted(-knobDiameter / 2, 0, knobDiameter / 2, 0);
    painter.setBrush(color({Color::ControlTrack}, palette()));
    painter.drawRoundedRect(all, grooveHeight / 2, grooveHeight / 2);
    QRectF chosen = all;
    if (layoutDirection() == Qt::LeftToRight) {
        chosen.setRight(positionOf(shown_));
    } else {
        chosen.setLeft(positionOf(shown_));
    }
    painter.setBrush(color({Color::Accent}, palette()));
    painter.drawRoundedRect(chosen, grooveHeight / 2, grooveHeight / 2);

    for (int stop = 0; stop < stops(); ++stop) {
        const double x = std::round(positionOf(valueOfStop(stop)) - 0.5);
        painter.fillRect(QRectF(x, marksBelow, 1, markHeight),
                         color({Color::Label, 0.28}, palette()));
    }

    const QRectF circle = knob();
    painter.setBrush(QColor(0, 0, 0, 35));
    painter.drawEllipse(circle.translated(0, 0.75));
    painter.setBrush(color({Color::ControlKnob}, palette()));
    painter.drawEllipse(circle);
    if (isEnabled() && (dragged_ || underMouse())) {
        painter.setBrush(QColor(0, 0, 0, dragged_ ? 36 : 14));
        painter.drawEllipse(circle);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color({Color::ControlBorder}, palette()), 1));
    painter.drawEllipse(circle.adjusted(0.5, 0.5, -0.5, -0.5));
}

int SteppedSlider::stops() const {
    return qRound((options_.maximum - options_.minimum) / options_.step) + 1;
}

double SteppedSlider::valueOfStop(int stop) const {
    // Between the two ends instead of step by step, and written with few digits: 0.3 is 0.3, not
    // three times a tenth.
    const double share = static_cast<double>(stop) / (stops() - 1);
    const double value = options_.minimum + (options_.maximum - options_.minimum) * share;
    return std::round(value * 1e9) / 1e9;
}

int SteppedSlider::nearestStop(double value) const {
    const double share = (value - options_.minimum) / (options_.maximum - options_.minimum);
    return std::clamp(qRound(share * (stops() - 1)), 0, stops() - 1);
}

void SteppedSlider::chooseStop(int stop) {
    const double value = valueOfStop(stop);
    if (isEnabled() && value != binding_->get()) {
        binding_->set(value);
    }
}

void SteppedSlider::moveBy(int stops) {
    chooseStop(std::clamp(nearestStop(shown_) + stops, 0, this->stops() - 1));
}

QRectF SteppedSlider::groove() const {
    return {knobDiameter / 2, (knobDiameter - grooveHeight) / 2, width() - knobDiameter,
            grooveHeight};
}

double SteppedSlider::positionOf(double value) const {
    const QRectF track = groove();
    const double share = (value - options_.minimum) / (options_.maximum - options_.minimum);
    return layoutDirection() == Qt::LeftToRight ? track.left() + track.width() * share
                                                : track.right() - track.width() * share;
}

double SteppedSlider::valueAt(double position) const {
    const QRectF track = groove();
    const double along =
        layoutDirection() == Qt::LeftToRight ? position - track.left() : track.right() - position;
    return options_.minimum + (options_.maximum - options_.minimum) * along / track.width();
}

QRectF SteppedSlider::knob() const {
    return {positionOf(shown_) - knobDiameter / 2, 0, knobDiameter, knobDiameter};
}

void SteppedSlider::show(double value) {
    shown_ = std::clamp(value, options_.minimum, options_.maximum);
    update();
    SliderAccessible::tellValue(*this);
}

} // namespace ui
