#pragma once

#include "ui/Modifiers.h"

#include <QScrollArea>

namespace ui {

class ScrollBar;

/// Shows as much of a taller content as it has room for. The indicator lies over the content's
/// margin, so that the content is as wide with it as without.
class ScrollArea final : public QScrollArea {
public:
    explicit ScrollArea(Element content);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {}; }

    /// Brings a widget of the content to the middle, as far as there is room to scroll.
    void centre(const QWidget& target);

    /// Scrolls just so far that a widget of the content can be seen. Happens by itself when the
    /// keyboard comes to one.
    void reveal(const QWidget& target);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void followScrollBar();
    void followFocus();
    /// Gives everything around a widget its place at once.
    void settleLayouts(const QWidget& target);
    void scrollTo(int value);

    ScrollBar& indicator_;
};

/// Scrolls the view around a widget to it, once its place is known.
void revealLater(QWidget& widget);

/// Scrolls the view around an element to it after each assignment to `value`.
template <typename T>
Modifier revealedOn(Binding<T> value) {
    return [value](Element element) {
        QWidget& widget = element.widget();
        keep(widget,
             std::pair(value, value->observe([&widget](const T&) { revealLater(widget); })));
        return element;
    };
}

/// Scrolls vertically, with a visible indicator.
Element scrollView(Element content);

} // namespace ui
