#include "ui/HostingView.h"

#include <QEvent>

namespace ui {

HostingView::HostingView(Element root, Sizing sizing)
    : root_(*root.take().release())
    , sizing_(sizing) {
    root_.setParent(this);
    place();
}

QSize HostingView::idealSize() const {
    return naturalSize(root_);
}

void HostingView::resizeEvent(QResizeEvent*) {
    place();
}

bool HostingView::event(QEvent* event) {
    // The element asks for another size, as with another font.
    if (event->type() == QEvent::LayoutRequest) {
        place();
        if (onIdealSizeChange) {
            onIdealSizeChange();
        }
    }
    return QWidget::event(event);
}

void HostingView::place() {
    if (sizing_ == Sizing::Filling) {
        root_.setGeometry(rect());
        return;
    }
    const QSize size = idealSize();
    root_.setGeometry((width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
                      size.height());
}

} // namespace ui
