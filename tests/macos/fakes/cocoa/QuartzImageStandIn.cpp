#include "platform/macos/QuartzImage.h"

namespace platform {

/// The pictures of the faked ScreenCaptureKit are the toolkit's own. A test that links the layer's
/// C files has the real conversion instead.
QImage toQImage(CGImageRef image) {
    return image == nullptr ? QImage() : *reinterpret_cast<const QImage*>(image);
}

} // namespace platform
