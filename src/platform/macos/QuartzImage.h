#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include <QImage>

namespace platform {

/// A copy of a Quartz picture, pixel for pixel, in sRGB. Null for null and for what does not fit
/// into memory. Any thread.
QImage toQImage(CGImageRef image);

} // namespace platform
