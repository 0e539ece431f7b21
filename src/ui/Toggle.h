#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"

#include <functional>

namespace ui {

/// A label with a switch at the trailing edge. A click anywhere on the row flips the switch.
Element toggle(const QString& label, Binding<bool> isOn);

/// A switch alone. It shows `isOn`; what a flip does is up to `flip`, which may assign to it.
Element switchControl(const QString& accessibilityLabel, Binding<bool> isOn,
                      std::function<void()> flip);

} // namespace ui
