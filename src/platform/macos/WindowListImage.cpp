#include "platform/macos/WindowListImage.h"

#include "platform/macos/CfReference.h"
#include "platform/macos/QuartzImage.h"

#include <dlfcn.h>

namespace platform {

namespace {

using CreateImage = CGImageRef (*)(CGRect bounds, CGWindowListOption listOption, CGWindowID window,
                                   CGWindowImageOption imageOption);

} // namespace

QImage windowListImageBelow(std::uint32_t window) {
    const auto createImage =
        reinterpret_cast<CreateImage>(dlsym(RTLD_DEFAULT, "CGWindowListCreateImage"));
    if (createImage == nullptr) {
        return {};
    }
    // The null rectangle stands for the smallest one around all the windows, without their shadows.
    const CfReference<CGImageRef> image(createImage(CGRectNull,
                                                    kCGWindowListOptionOnScreenBelowWindow, window,
                                                    kCGWindowImageBoundsIgnoreFraming));
    return toQImage(image.get());
}

} // namespace platform
