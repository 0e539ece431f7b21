#include "ui/Stack.h"

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
        QPainter(this).fillRect(rect(), color({Color::Separator}, palette()));
    }
};

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
