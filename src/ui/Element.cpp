#include "ui/Element.h"

#include <QHBoxLayout>

namespace ui {

Element wrapped(Element element) {
    auto box = std::make_unique<QWidget>();
    embed(*box, std::move(element));
    return Element(std::move(box));
}

void embed(QWidget& container, Element element) {
    auto* layout = new QHBoxLayout(&container);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(element.take().release());
    keepSizeUnlessGrowing(*layout, Qt::Horizontal | Qt::Vertical);
}

void keepSizeUnlessGrowing(QBoxLayout& layout, Qt::Orientations directions) {
    QLayoutItem& item = *layout.itemAt(layout.count() - 1);
    const Qt::Orientations centred = directions & ~item.expandingDirections();
    Qt::Alignment alignment;
    alignment.setFlag(Qt::AlignHCenter, centred.testFlag(Qt::Horizontal));
    alignment.setFlag(Qt::AlignVCenter, centred.testFlag(Qt::Vertical));
    item.setAlignment(alignment);
}

QSize naturalSize(const QWidget& widget) {
    return widget.sizeHint().expandedTo(widget.minimumSize()).boundedTo(widget.maximumSize());
}

} // namespace ui
