#pragma once

#include "platform/WindowServer.h"

#include <qwindowdefs.h>

#include <cstdint>

namespace platform::nativeWindow {

/// Makes the window behind a toolkit's view a plain borderless one, clear and with a shadow, that
/// floats above ordinary windows on every desktop and cannot be moved. The toolkit sets some of it
/// anew whenever it shows a window, so this is done after each time.
void makeFloating(WId view);

/// Who is told what the pointer does over a view while another application is active. The location
/// is on the screen.
struct PointerHandlers {
    void (*moved)(WId view, Point location);
    void (*left)(WId view);
};

/// Tells of the pointer for as long as there is the view. Asked again, it changes nothing.
void followPointer(WId view, const PointerHandlers& handlers);

/// Shows the window in front of the others of its level. It does not become the key window.
void orderFront(WId view);

/// Shows an ordinary window in front of all applications' and makes it the key window.
void bringToFront(WId view);

/// Puts a blurred picture of what lies behind the window behind what the view draws. `frame` is in
/// the view, from its bottom-left corner; a window has one such picture.
void setMaterial(WId view, const Rect& frame, const WindowMaterial& material);

/// The number of the program's window that has the keyboard; 0 when none has it.
std::int64_t keyWindowNumber();

/// No icon among the running applications. The process keeps its pace while it has no window.
void becomeAccessory();

} // namespace platform::nativeWindow
