#include "ui/ScrollView.h"

#include "ui/ScrollBar.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QPropertyAnimation>
#include <QTimer>

#include <algorithm>

namespace ui {

namespace {

constexpr int animationTime = 200; // milliseconds

ScrollArea* areaAround(const QWidget& widget) {
    for (auto* around = widget.parentWidget(); around; around = around->parentWidget()) {
        if (auto* area = dynamic_cast<ScrollArea*>(around)) {
            return area;
        }
    }
    return nullptr;
}

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
    followFocus();
}

QSize ScrollArea::sizeHint() const {
    return widget() != nullptr ? widget()->sizeHint() : QScrollArea::sizeHint();
}

void ScrollArea::centre(const QWidget& target) {
    widget()->layout()->activate();
    const int middle = target.mapTo(widget(), target.rect().center()).y();
    scrollTo(middle - viewport()->height() / 2);
}

void ScrollArea::reveal(const QWidget& target) {
    constexpr int around = 16;
    settleLayouts(target);
    const int top = target.mapTo(widget(), QPoint(0, 0)).y() - around;
    const int bottom = top + target.height() + 2 * around;
    const int shown = verticalScrollBar()->value();
    scrollTo(std::min(std::max(shown, bottom - viewport()->height()), top));
}

void ScrollArea::settleLayouts(const QWidget& target) {
    for (auto* around = target.parentWidget(); around != viewport();
         around = around->parentWidget()) {
        QCoreApplication::sendPostedEvents(around, QEvent::LayoutRequest);
    }
    // And the content gets the height that it asks for.
    QCoreApplication::sendPostedEvents(viewport(), QEvent::LayoutRequest);
}

void ScrollArea::followFocus() {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // What was clicked is in sight.
        if (now != nullptr && widget()->isAncestorOf(now) &&
            QGuiApplication::mouseButtons() == Qt::NoButton) {
            reveal(*now);
        }
    });
}

void ScrollArea::scrollTo(int wanted) {
    QScrollBar& bar = *verticalScrollBar();
    const int value = qBound(bar.minimum(), wanted, bar.maximum());
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
    followScrollBar();
}

void ScrollArea::followScrollBar() {
    const QScrollBar& bar = *verticalScrollBar();
    indicator_.setRange(bar.minimum(), bar.maximum());
    indicator_.setPageStep(viewport()->height());
    indicator_.setSingleStep(bar.singleStep());
    indicator_.setVisible(bar.maximum() > bar.minimum());
}

void revealLater(QWidget& widget) {
    // What changes together with it has not been laid out yet.
    QTimer::singleShot(0, &widget, [&widget] {
        if (auto* area = areaAround(widget); area != nullptr && widget.isVisible()) {
            area->reveal(widget);
        }
    });
}

Element scrollView(Element content) {
    return Element(std::make_unique<ScrollArea>(std::move(content)));
}

} // namespace ui
