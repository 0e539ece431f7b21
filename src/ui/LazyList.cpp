#include "ui/LazyList.h"

#include "ui/AccessibleRole.h"
#include "ui/ScrollBar.h"
#include "ui/Theme.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace ui {

LazyList::LazyList(int rowHeight)
    : rowHeight_(rowHeight) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(std::make_unique<ScrollBar>().release());
    verticalScrollBar()->setSingleStep(rowHeight);
    setViewportMargins(0, 1, 0, 1);
    viewport()->setAutoFillBackground(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleRole(*this, QAccessible::Grouping);
    setAccessibleRole(*viewport(), QAccessible::List);
}

void LazyList::setRows(Rows rows) {
    for (const auto& [index, row] : std::exchange(visible_, {})) {
        // Not later: of keys that come faster than they are handled, each would leave its rows.
        delete row;
    }
    rows_ = std::move(rows);
    current_ = 0;
    updateRange();
    verticalScrollBar()->setValue(0);
    layOut();
}

QWidget* LazyList::row(int index) const {
    const auto found = visible_.find(index);
    return found != visible_.end() ? found->second : nullptr;
}

bool LazyList::event(QEvent* event) {
    // What the viewport draws comes here as well; the border is the list's own. It is open at the
    // sides: a list goes from edge to edge.
    if (event->type() == QEvent::Paint) {
        QPainter painter(this);
        painter.fillRect(rect(), color({Color::TextBackground}, palette()));
        if (hasFocus() && current_ < rows_.count) {
            const int top = viewport()->y() + current_ * rowHeight_ - verticalScrollBar()->value();
            painter.fillRect(0, top, viewport()->width(), rowHeight_,
                             color({Color::Accent, 0.2}, palette()));
        }
        const QColor line = color({hasFocus() ? Color::Accent : Color::ControlBorder}, palette());
        painter.fillRect(0, 0, width(), 1, line);
        painter.fillRect(0, height() - 1, width(), 1, line);
    }
    return QAbstractScrollArea::event(event);
}

void LazyList::focusInEvent(QFocusEvent*) {
    update();
    // After the toolkit has told that the list itself has the keyboard.
    QMetaObject::invokeMethod(this, &LazyList::tellCurrent, Qt::QueuedConnection);
}

void LazyList::focusOutEvent(QFocusEvent*) {
    update();
}

void LazyList::keyPressEvent(QKeyEvent* event) {
    const int page = std::max(1, viewport()->height() / rowHeight_ - 1);
    switch (event->key()) {
    case Qt::Key_Down:
        return setCurrent(current_ + 1);
    case Qt::Key_Up:
        return setCurrent(current_ - 1);
    case Qt::Key_PageDown:
        return setCurrent(current_ + page);
    case Qt::Key_PageUp:
        return setCurrent(current_ - page);
    case Qt::Key_Home:
        return setCurrent(0);
    case Qt::Key_End:
        return setCurrent(rows_.count - 1);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current_ < rows_.count) {
            rows_.activate(current_);
        }
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void LazyList::resizeEvent(QResizeEvent*) {
    updateRange();
    layOut();
}

void LazyList::scrollContentsBy(int, int) {
    layOut();
    update();
}

void LazyList::layOut() {
    const int top = verticalScrollBar()->value();
    const int first = std::max(0, top / rowHeight_);
    const int last = std::min(rows_.count - 1, (top + viewport()->height() - 1) / rowHeight_);
    std::erase_if(visible_, [&](const auto& entry) {
        const bool gone = entry.first < first || entry.first > last;
        if (gone) {
            entry.second->hide();
            entry.second->deleteLater(); // it may be in the middle of handling an event
        }
        return gone;
    });
    for (int index = first; index <= last; ++index) {
        QWidget*& row = visible_[index];
        if (row == nullptr) {
            row = rows_.make(index).take().release();
            setAccessibleRole(*row, QAccessible::ListItem);
            row->setAccessibleName(rows_.name(index));
            row->setParent(viewport());
            place(index, *row);
            row->show();
        } else {
            place(index, *row);
        }
    }
}

void LazyList::place(int index, QWidget& row) const {
    // As wide as the list: a scroll bar that comes and goes covers the row's margin and moves
    // nothing.
    row.setGeometry(0, index * rowHeight_ - verticalScrollBar()->value(), width(), rowHeight_);
}

void LazyList::setCurrent(int index) {
    current_ = std::clamp(index, 0, std::max(0, rows_.count - 1));
    const int top = current_ * rowHeight_;
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(std::clamp(bar.value(), top + rowHeight_ - viewport()->height(), top));
    update();
    tellCurrent();
}

void LazyList::tellCurrent() {
    if (QWidget* current = row(current_); current != nullptr && hasFocus()) {
        QAccessibleEvent event(current, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

void LazyList::updateRange() {
    const int hidden = rows_.count * rowHeight_ - viewport()->height();
    verticalScrollBar()->setRange(0, std::max(0, hidden));
    verticalScrollBar()->setPageStep(viewport()->height());
}

} // namespace ui
