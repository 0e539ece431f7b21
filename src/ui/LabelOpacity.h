#pragma once

class QWidget;

namespace ui {

/// A label pales while the button around it is held down, and more so while it cannot be used.
double labelOpacity(const QWidget& label);

} // namespace ui
