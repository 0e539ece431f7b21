#pragma once

#include "bar/TextFormat.h"
#include "ui/Element.h"

#include <functional>

namespace bar {

/// The button of one format.
struct IconButton {
    QString icon;
    QString tooltip;
    std::function<void()> action;

    ui::Element body() const;
};

} // namespace bar
