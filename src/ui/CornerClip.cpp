#include "ui/CornerClip.h"

#include <QPainter>

namespace ui {

CornerClip::CornerClip(RoundedRectangle shape, QWidget& window)
    : QWidget(&window)
    , shape_(shape) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CornerClip::paintEvent(QPaintEvent*) {
    QPainterPath outside;
    outside.addRect(rect());
    outside -= shape_.path(rect());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Everything in a window is drawn into one picture: what is taken out here is out.
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(outside, Qt::black);
}

} // namespace ui
