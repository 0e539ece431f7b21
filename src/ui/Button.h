#pragma once

#include "ui/Element.h"

#include <functional>

namespace ui {

/// A button without a bezel of its own: it looks exactly like its label. It takes no focus.
Element button(Element label, std::function<void()> action);

} // namespace ui
