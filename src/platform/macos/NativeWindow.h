#pragma once

#include <qwindowdefs.h>

namespace platform::nativeWindow {

/// Makes the window behind a toolkit's view a plain borderless one, clear and with a shadow, that
/// floats above ordinary windows on every desktop and cannot be moved. The toolkit sets some of it
/// anew whenever it shows a window, so this is done after each time.
void makeFloating(WId view);

/// Shows the window in front of the others of its level. It does not become the key window.
void orderFront(WId view);

/// Shows an ordinary window in front of all applications' and makes it the key window.
void bringToFront(WId view);

/// Puts a blurred picture of what lies behind the window behind everything that the view draws, and
/// cuts both to round corners. `material` and `blendingMode` are the system's numbers.
void setMaterial(WId view, int material, int blendingMode, double cornerRadius);

/// No icon among the running applications.
void becomeAccessory();

} // namespace platform::nativeWindow
