#pragma once

#include "ui/Element.h"

#include <functional>

namespace ui {

enum class ButtonFocus { None, Keyboard };

/// A button without a bezel of its own: it looks exactly like its label. Unless asked for, it takes
/// no focus.
Element button(Element label, std::function<void()> action, ButtonFocus focus = ButtonFocus::None);

} // namespace ui
