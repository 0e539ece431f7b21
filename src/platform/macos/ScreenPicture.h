#pragma once

#include "platform/Geometry.h"

#include <QImage>

#include <vector>

namespace platform {

/// What one display shows. Points, origin at the top-left corner of the primary screen.
struct DisplayPicture {
    Rect frame;
    QImage picture;
};

struct ScreenContents {
    std::vector<DisplayPicture> displays;
    /// The frames of the windows that the pictures show.
    std::vector<Rect> windows;
};

/// One picture of all displays, cut to the area that the windows cover, at the resolution of the
/// sharpest display. Null when no window is on a display.
QImage toPicture(const ScreenContents& contents);

} // namespace platform
