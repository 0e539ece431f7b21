#pragma once

#include "platform/Geometry.h"

#include <qwindowdefs.h>

/// The toolkit tells widgets nothing of the pointer while another application is active, as it is
/// whenever the bar is of use. Then they are told here, by the same events.
namespace platform::inactiveHover {

/// The pointer is at `location` on the screen, over the window of that view.
void pointerMoved(WId view, Point location);

void pointerLeft(WId view);

} // namespace platform::inactiveHover
