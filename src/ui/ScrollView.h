#pragma once

#include "ui/Element.h"

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

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void followScrollBar();

    ScrollBar& indicator_;
};

/// Scrolls vertically, with a visible indicator.
Element scrollView(Element content);

} // namespace ui
