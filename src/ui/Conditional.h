#pragma once

#include "ui/Modifiers.h"

namespace ui {

/// Takes an element out of the layout, or puts it back.
void setPresent(QWidget& widget, bool present);

/// An element that is there while the value is as wanted, and otherwise takes no room.
template <typename T>
Modifier shownWhen(Binding<T> value, std::function<bool(const T&)> wanted) {
    return [value, wanted = std::move(wanted)](Element element) {
        QWidget& widget = element.widget();
        setPresent(widget, wanted(value->get()));
        keep(widget, std::pair(value, value->observe([&widget, wanted](const T& next) {
                 setPresent(widget, wanted(next));
             })));
        return element;
    };
}

inline Modifier shownWhile(Binding<bool> value) {
    return shownWhen<bool>(std::move(value), [](bool shown) { return shown; });
}

inline Modifier shownUnless(Binding<bool> value) {
    return shownWhen<bool>(std::move(value), [](bool hidden) { return !hidden; });
}

} // namespace ui
