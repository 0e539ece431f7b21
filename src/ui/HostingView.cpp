#include "ui/HostingView.h"

#include <QEvent>

namespace ui {

HostingView::HostingView(Element root)
    : root_(*root.take().release()) {
    root_.setParent(this);
    centre();
}

void HostingView::resizeEvent(QResizeEvent*) {
    centre();
}

bool HostingView::event(QEvent* event) {
    // The element asks for another size, as with another font.
    if (event->type() == QEvent::LayoutRequest) {
        centre();
    }
    return QWidget::event(event);
}

void HostingView::centre() {
    const QSize size = naturalSize(root_);
    root_.setGeometry((width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
                      size.height());
}

} // namespace ui
