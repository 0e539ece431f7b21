#include "ui/Decoration.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

#include <utility>

namespace ui {

Decoration& Decoration::of(QWidget& widget) {
    for (QObject* child : widget.children()) {
        if (auto* decoration = dynamic_cast<Decoration*>(child)) {
            return *decoration;
        }
    }
    return *new Decoration(widget);
}

Decoration::Decoration(QWidget& widget)
    : QObject(&widget)
    , widget_(widget) {
    widget.installEventFilter(this);
}

void Decoration::addBehind(Layer layer) {
    layers_.insert(layers_.begin(), std::move(layer));
}

void Decoration::addInFront(Layer layer) {
    layers_.push_back(std::move(layer));
}

void Decoration::addHoverHandler(std::function<void(bool)> handler) {
    hoverHandlers_.push_back(std::move(handler));
}

bool Decoration::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::Paint:
        paint();
        break;
    case QEvent::Enter:
        setHovered(true);
        break;
    case QEvent::Leave:
    case QEvent::Hide: // a window that vanishes under the pointer is not always told that it left
        setHovered(false);
        break;
    default:
        break;
    }
    return false;
}

void Decoration::paint() const {
    QPainter painter(&widget_);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Layer& layer : layers_) {
        layer(painter, widget_.rect(), widget_.palette());
    }
}

void Decoration::setHovered(bool hovered) {
    if (hovered_ == hovered) {
        return;
    }
    hovered_ = hovered;
    for (const auto& handler : hoverHandlers_) {
        handler(hovered);
    }
}

} // namespace ui
