#include "ui/ScrollView.h"

#include "ui/ScrollBar.h"

#include <QEvent>
#include <QLayout>
#include <QPropertyAnimation>

namespace ui {

namespace {

constexpr int animationTime = 200; // milliseconds

} // namespace

ScrollArea::ScrollArea(Element content)
    : indicator_(*std::make_unique<ScrollBar>(ScrollBar::Width::Narrow).release()) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    setWidget(content.take().release());
    widget()->setAutoFillBackground(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    indicator_.setParent(this);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &ScrollArea::followScrollBar);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, &indicator_, &QScrollBar::setValue);
    connect(&indicator_, &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    followScrollBar();
}

QSize ScrollArea::sizeHint() const {
    return widget() != nullptr ? widget()->sizeHint() : QScrollArea::sizeHint();
}

void ScrollArea::centre(const QWidget& target) {
    widget()->layout()->activate();
    const int middle = target.mapTo(widget(), target.rect().center()).y();
    QScrollBar& bar = *verticalScrollBar();
    const int value = qBound(bar.minimum(), middle - viewport()->height() / 2, bar.maximum());
    delete bar.findChild<QPropertyAnimation*>();
    if (!isVisible()) {
        bar.setValue(value);
        return;
    }
    auto* animation = new QPropertyAnimation(&bar, "value", &bar);
    animation->setDuration(animationTime);
    animation->setEasingCurve(QEasingCurve::InOutQuad);
    animation->setEndValue(value);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

bool ScrollArea::event(QEvent* event) {
    // The content asks for another size.
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::event(event);
}

void ScrollArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    const int width = indicator_.sizeHint().width();
    indicator_.setGeometry(this->width() - width, 0, width, height());
}

void ScrollArea::followScrollBar() {
    const QScrollBar& bar = *verticalScrollBar();
    indicator_.setRange(bar.minimum(), bar.maximum());
    indicator_.setPageStep(bar.pageStep());
    indicator_.setSingleStep(bar.singleStep());
    indicator_.setVisible(bar.maximum() > bar.minimum());
}

Element scrollView(Element content) {
    return Element(std::make_unique<ScrollArea>(std::move(content)));
}

} // namespace ui
