#pragma once

#include "ui/Element.h"

#include <QAbstractScrollArea>

#include <functional>
#include <map>

namespace ui {

/// Rows of one height, of which only those exist that can be seen. It takes the keyboard as a
/// whole: arrows, Page and Home and End move its current row, Space and Return activate that.
class LazyList final : public QAbstractScrollArea {
    Q_OBJECT

public:
    struct Rows {
        int count = 0;
        std::function<Element(int)> make;
        std::function<QString(int)> name;
        std::function<void(int)> activate;
    };

    explicit LazyList(int rowHeight);

    /// Replaces all rows and scrolls to the top. Not to be called by a row's own handler.
    void setRows(Rows rows);

    /// Null while the row cannot be seen.
    QWidget* row(int index) const;

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void layOut();
    void place(int index, QWidget& row) const;
    void setCurrent(int index);
    /// A screen reader follows the current row as if it had the keyboard itself.
    void tellCurrent();
    void updateRange();

    int rowHeight_;
    Rows rows_;
    int current_ = 0;
    std::map<int, QWidget*> visible_;
};

} // namespace ui
