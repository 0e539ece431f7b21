#pragma once

#include "ui/Modifiers.h"

#include <QAccessible>

namespace ui {

/// What a widget is to assistive technology, where its class does not say so already. To be said
/// before anything else is told of the widget.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Whether a list's item is the chosen one; told to assistive technology when it changes.
void setAccessiblySelected(QWidget& item, bool selected);

Modifier accessibilityRole(QAccessible::Role role);

} // namespace ui
