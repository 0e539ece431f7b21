#pragma once

#include "ui/Slider.h"

#include <QWidget>

namespace ui {

/// The slider itself: a knob on a groove with a mark below each stop.
class SteppedSlider final : public QWidget {
    Q_OBJECT

public:
    SteppedSlider(Binding<double> value, SliderOptions options);

    double value() const { return shown_; }
    const SliderOptions& options() const { return options_; }
    /// Chooses the stop nearest to `value` as the user would.
    void choose(double value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int stops() const;
    double valueOfStop(int stop) const;
    int nearestStop(double value) const;
    void chooseStop(int stop);
    void moveBy(int stops);
    /// Where the middle of the knob may be, along the slider.
    QRectF groove() const;
    double positionOf(double value) const;
    double valueAt(double position) const;
    QRectF knob() const;
    void show(double value);

    Binding<double> binding_;
    SliderOptions options_;
    double shown_ = 0;
    bool dragged_ = false;
    core::Registration observation_;
};

} // namespace ui
