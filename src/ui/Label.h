#pragma once

#include "ui/Element.h"
#include "ui/Theme.h"

#include <vector>

namespace ui {

struct SymbolOptions {
    double pointSize = 13;
    Weight weight = Weight::Regular;
    /// One colour, or a gradient from the leading to the trailing edge.
    std::vector<Color> colors = {Color::Label};
};

/// A system symbol by its name, sharp at any density.
Element symbol(const QString& name, SymbolOptions options = {});

struct TextOptions {
    double pointSize = 13;
    Weight weight = Weight::Regular;
    Color color = Color::Label;
};

/// One line of text.
Element text(const QString& text, TextOptions options = {});

} // namespace ui
