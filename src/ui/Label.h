#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"
#include "ui/Theme.h"

#include <functional>
#include <vector>

namespace ui {

struct SymbolOptions {
    double pointSize = 13;
    Weight weight = Weight::Regular;
    /// One, or a gradient from the leading to the trailing edge.
    std::vector<Ink> colors = {Color::Label};
};

/// A system symbol by its name, sharp at any density.
Element symbol(const QString& name, SymbolOptions options = {});

struct TextOptions {
    double pointSize = 13;
    Weight weight = Weight::Regular;
    Ink color = Color::Label;
    bool isMonospaced = false;
    /// Takes as many lines as it needs at the width that it gets, instead of one.
    bool wraps = false;
    /// Ends in an ellipsis where there is not enough room for one line.
    bool truncates = false;
};

/// The sizes and weights of text by what it is for.
enum class TextStyle { Title2, Headline, Body, Callout, Caption, Caption2 };

TextOptions textOptions(TextStyle style, Color color = Color::Label);

Element text(const QString& text, TextOptions options = {});

/// Gives another text to a widget made by text().
void setText(QWidget& widget, const QString& text);

/// A text made of a value, made again for each assignment.
template <typename T>
Element text(Binding<T> value, std::function<QString(const T&)> make, TextOptions options = {}) {
    Element element = text(make(value->get()), options);
    QWidget& widget = element.widget();
    keep(widget, std::pair(value, value->observe([&widget, make](const T& next) {
             setText(widget, make(next));
         })));
    return element;
}

} // namespace ui
