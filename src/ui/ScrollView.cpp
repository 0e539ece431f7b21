#include "ui/ScrollView.h"

#include "ui/ScrollBar.h"

#include <QPropertyAnimation>

namespace ui {

namespace {

constexpr int animationTime = 200; // milliseconds

} // namespace

ScrollArea::ScrollArea(Element content) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(std::make_unique<ScrollBar>().release());
    viewport()->setAutoFillBackground(false);
    setWidget(content.take().release());
    widget()->setAutoFillBackground(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ScrollArea::sizeHint() const {
    return widget() != nullptr ? widget()->sizeHint() : QScrollArea::sizeHint();
}

void ScrollArea::centre(const QWidget& target) {
    const int middle = target.mapTo(widget(), target.rect().center()).y();
    QScrollBar& bar = *verticalScrollBar();
    const int value = qBound(bar.minimum(), middle - viewport()->height() / 2, bar.maximum());
    delete bar.findChild<QPropertyAnimation*>();
    auto* animation = new QPropertyAnimation(&bar, "value", &bar);
    animation->setDuration(animationTime);
    animation->setEasingCurve(QEasingCurve::InOutQuad);
    animation->setEndValue(value);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

Element scrollView(Element content) {
    return Element(std::make_unique<ScrollArea>(std::move(content)));
}

} // namespace ui
