#include "platform/macos/WindowListImage.h"

#include "platform/macos/CfReference.h"
#include "platform/macos/QuartzImage.h"

#include <dlfcn.h>

namespace platform {

namespace {

using CreateImage = CGImageRef (*)(CGRect bounds, std::uint32_t listOption, std::uint32_t window,
                                   std::uint32_t imageOption);

/// "kCGWindowListOptionOnScreenBelowWindow"
constexpr std::uint32_t onScreenBelowWindow = 4;
/// "kCGWindowImageBoundsIgnoreFraming": without shadows.
constexpr std::uint32_t boundsIgnoreFraming = 1;

} // namespace

QImage windowListImageBelow(std::uint32_t window) {
    const auto createImage =
        reinterpret_cast<CreateImage>(dlsym(RTLD_DEFAULT, "CGWindowListCreateImage"));
    if (createImage == nullptr) {
        return {};
    }
    // The null rectangle stands for the smallest one around all the windows.
    const CfReference<CGImageRef> image(
        createImage(CGRectNull, onScreenBelowWindow, window, boundsIgnoreFraming));
    return toQImage(image.get());
}

} // namespace platform
