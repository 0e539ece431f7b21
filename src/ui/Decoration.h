#pragma once

#include "ui/RoundedRectangle.h"

#include <QBrush>
#include <QObject>
#include <QPalette>

#include <functional>
#include <vector>

class QPainter;
class QWidget;

namespace ui {

/// What modifiers put behind a widget's own contents, and whom they tell that the pointer is over
/// it. A widget has at most one; it lives as long as the widget.
class Decoration final : public QObject {
public:
    /// Draws behind the contents of a widget of that rectangle.
    using Layer = std::function<void(QPainter&, const QRectF&, const QPalette&)>;

    static Decoration& of(QWidget& widget);

    /// Puts a layer behind those that are there.
    void addBehind(Layer layer);
    /// Puts a layer over those that are there, still behind the widget's children.
    void addInFront(Layer layer);
    void addHoverHandler(std::function<void(bool)> handler);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit Decoration(QWidget& widget);

    void paint() const;
    void setHovered(bool hovered);

    QWidget& widget_;
    std::vector<Layer> layers_;
    std::vector<std::function<void(bool)>> hoverHandlers_;
    bool hovered_ = false;
};

} // namespace ui
