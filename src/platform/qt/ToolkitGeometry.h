#pragma once

#include "platform/Geometry.h"

#include <QRect>

class QWidget;

namespace platform {

/// The toolkit's points have their origin at the top-left corner of the whole desktop, ours at the
/// bottom-left corner of the primary screen.
Rect fromToolkit(const QRect& frame);

/// In whole points, at least one wide and high, and no farther away than window systems can count.
QRect toToolkit(const Rect& frame);

/// The frame of a part of a window, on the screen.
Rect frameOnScreen(const QWidget& part);

/// Moves a window to where `frame` is, and to the screen that is nearest to it.
void setToolkitFrame(QWidget& window, const Rect& frame);

} // namespace platform
