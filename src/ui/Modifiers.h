#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"
#include "ui/RoundedRectangle.h"
#include "ui/Theme.h"

#include <functional>
#include <optional>

namespace ui {

/// Takes an element and gives it back dressed.
using Modifier = std::function<Element(Element)>;

struct Padding {
    int horizontal = 0;
    int vertical = 0;
    /// Further space at the edge where reading begins.
    int leading = 0;
};

/// Empty space around an element, in points.
Modifier padding(Padding padding);

struct Frame {
    std::optional<int> width = std::nullopt;
    std::optional<int> height = std::nullopt;
    std::optional<int> minimumWidth = std::nullopt;
};

/// A fixed width, height or both, in points, or a least width, with the element in the middle.
Modifier frame(Frame frame);

/// The colour of a background, asked for whenever it is drawn.
using Fill = std::function<QColor(const QPalette&)>;

/// A tint as a fill; the function form may depend on what the view observes with redrawOn.
Fill fill(std::function<Tint()> tint);

/// A filled shape behind an element, as large as the element.
Modifier background(RoundedRectangle shape, Fill fill);

/// The outline of a shape inside an element's edges, in front of its background. Contents that
/// reach the edge lie over it.
Modifier border(RoundedRectangle shape, Tint tint, double lineWidth);
/// The function may depend on what the view observes with redrawOn.
Modifier border(RoundedRectangle shape, std::function<Tint()> tint, double lineWidth);

/// The outline of a shape inside an element's edges, in front of everything in it.
Modifier outline(RoundedRectangle shape, Tint tint, double lineWidth);

/// An element of its own size behind another one, in its middle.
Modifier behind(const std::function<Element()>& backdrop);

/// A ring around a control of that shape while it has the keyboard.
Modifier focusRing(double cornerRadius);

/// Calls `action` each time an element comes to be seen in its window.
Modifier onAppear(std::function<void()> action);

/// Shown while the pointer rests over an element; also its name for assistive technology.
Modifier tooltip(const QString& text);

/// Keeps `isHovered` true while the pointer is over an element.
Modifier onHover(Binding<bool> isHovered);

/// Calls `action` for a press and release of the primary button on an element, except where a
/// control in it takes the press.
Modifier onTap(std::function<void()> action);

/// An element's name for assistive technology.
Modifier accessibilityLabel(const QString& label);

/// What an element shows at the moment, for assistive technology.
Modifier accessibilityValue(Binding<QString> value);

/// The object name by which tests find an element.
Modifier identifier(const QString& name);

/// Draws an element again after each assignment to `value`.
template <typename T>
Modifier redrawOn(Binding<T> value) {
    return [value](Element element) {
        QWidget& widget = element.widget();
        // Drawing comes later, from the event loop, when the value has been assigned.
        keep(widget, std::pair(value, value->observe([&widget](const T&) { widget.update(); })));
        return element;
    };
}

} // namespace ui
