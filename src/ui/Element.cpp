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
    const Qt::Orientations centred = directions & ~growingDirections(*item.widget());
    Qt::Alignment alignment;
    alignment.setFlag(Qt::AlignHCenter, centred.testFlag(Qt::Horizontal));
    alignment.setFlag(Qt::AlignVCenter, centred.testFlag(Qt::Vertical));
    item.setAlignment(alignment);
}

Qt::Orientations growingDirections(const QWidget& widget) {
    // As the toolkit's layouts do it, which however take a hidden widget for none at all.
    const QSizePolicy policy = widget.sizePolicy();
    Qt::Orientations directions = policy.expandingDirections();
    if (const QLayout* layout = widget.layout()) {
        const Qt::Orientations inner = layout->expandingDirections();
        const auto mayGrow = [](QSizePolicy::Policy axis) {
            return (axis & QSizePolicy::GrowFlag) != 0;
        };
        if (inner.testFlag(Qt::Horizontal) && mayGrow(policy.horizontalPolicy())) {
            directions |= Qt::Horizontal;
        }
        if (inner.testFlag(Qt::Vertical) && mayGrow(policy.verticalPolicy())) {
            directions |= Qt::Vertical;
        }
    }
    return directions;
}

QSize naturalSize(const QWidget& widget) {
    return widget.sizeHint().expandedTo(widget.minimumSize()).boundedTo(widget.maximumSize());
}

} // namespace ui
