#include "ui/Stack.h"

#include "ui/DevicePixels.h"
#include "ui/Theme.h"

#include <QBoxLayout>
#include <QPainter>

namespace ui {

namespace {

/// Room that gives way.
class Spacer final : public QWidget {};

/// A separator line that fills itself.
class Divider final : public QWidget {
public:
    explicit Divider(Qt::Orientation orientation) {
        if (orientation == Qt::Vertical) {
            setFixedWidth(1);
            setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        } else {
            setFixedHeight(1);
            setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        }
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(hairline(painter, rect()), color({Color::Separator}, palette()));
    }
};

/// A centred item moves to the leading edge, or to the top.
void alignLeading(QLayoutItem& item) {
    Qt::Alignment alignment = item.alignment();
    if (alignment.testFlag(Qt::AlignHCenter)) {
        alignment.setFlag(Qt::AlignHCenter, false);
        alignment.setFlag(Qt::AlignLeading);
    }
    if (alignment.testFlag(Qt::AlignVCenter)) {
        alignment.setFlag(Qt::AlignVCenter, false);
        alignment.setFlag(Qt::AlignTop);
    }
    item.setAlignment(alignment);
}

} // namespace

Element stack(Qt::Orientation axis, StackOptions options, std::vector<Element> children) {
    auto widget = std::make_unique<QWidget>();
    const bool horizontal = axis == Qt::Horizontal;
    auto* layout = new QBoxLayout(horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom,
                                  widget.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(options.spacing);
    for (Element& element : children) {
        auto child = element.take();
        if (dynamic_cast<Spacer*>(child.get()) != nullptr) {
            layout->addStretch(1);
            continue;
        }
        layout->addWidget(child.release());
        keepSizeUnlessGrowing(*layout, horizontal ? Qt::Vertical : Qt::Horizontal);
        if (options.alignment == Alignment::Leading) {
            alignLeading(*layout->itemAt(layout->count() - 1));
        }
    }
    // What wants to grow along the stack comes before mere space.
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget* child = layout->itemAt(i)->widget();
        if (child != nullptr && growingDirections(*child).testFlag(axis)) {
            layout->setStretch(i, 1000);
        }
    }
    return Element(std::move(widget));
}

Element spacer() {
    return Element(std::make_unique<Spacer>());
}

Element divider(Qt::Orientation orientation) {
    return Element(std::make_unique<Divider>(orientation));
}

} // namespace ui
