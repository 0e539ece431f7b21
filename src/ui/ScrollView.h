#pragma once

#include "ui/Element.h"

#include <QScrollArea>

namespace ui {

/// Shows as much of a taller content as it has room for.
class ScrollArea final : public QScrollArea {
public:
    explicit ScrollArea(Element content);

    QSize sizeHint() const override;

    /// Brings a widget of the content to the middle, as far as there is room to scroll.
    void centre(const QWidget& target);
};

/// Scrolls vertically, with a visible indicator.
Element scrollView(Element content);

} // namespace ui
