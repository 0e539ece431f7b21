#pragma once

#include "ui/Element.h"
#include "ui/PopoverPlacement.h"

#include <QPainterPath>

namespace ui {

/// A popover's body with its arrow, drawn around its contents.
class PopoverFrame final : public QWidget {
public:
    explicit PopoverFrame(Element contents);

    /// The size that the contents want, without the arrow.
    platform::Size bodySize() const;
    void setArrow(ArrowDirection direction, double x);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRectF body() const;
    QPainterPath outline() const;

    QWidget& contents_;
    ArrowDirection arrow_ = ArrowDirection::Up;
    double arrowX_ = 0;
};

} // namespace ui
