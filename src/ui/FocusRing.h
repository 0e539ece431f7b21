#pragma once

#include <QObject>
#include <QRectF>

#include <functional>
#include <memory>

class QWidget;

namespace ui {

/// Shows which control has the keyboard: a ring around its shape while it has the focus, unless the
/// focus came by a press of the pointer, or with a window that opened. It is drawn over the
/// neighbours, so that a control needs no room for it.
class FocusRing final : public QObject {
public:
    struct Shape {
        /// In the control's coordinates.
        QRectF rect;
        double cornerRadius = 0;
    };

    /// Rings `control` for as long as it lives.
    static void attach(QWidget& control, std::function<Shape()> shape);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Overlay;

    FocusRing(QWidget& control, std::function<Shape()> shape);
    ~FocusRing() override;

    void gain(Qt::FocusReason reason);
    void show();
    void place();
    void hide();
    void watchAncestors(bool watched);

    QWidget& control_;
    std::function<Shape()> shape_;
    Overlay* overlay_ = nullptr;
    /// Whether the ring was there when the window lost the keyboard.
    bool wasShown_ = false;
};

} // namespace ui
