#include "platform/macos/MacScreenCapture.h"

#include "platform/macos/NativeWindow.h"
#include "platform/macos/ScreenRecording.h"
#include "platform/macos/Screenshots.h"
#include "platform/macos/WindowListImage.h"

namespace platform {

std::int64_t MacScreenCapture::keyWindowNumber() {
    return nativeWindow::keyWindowNumber();
}

QImage MacScreenCapture::pictureBelow(std::uint32_t window) {
    if (!screenRecording::isPermitted() && !screenRecording::request()) {
        return {};
    }
    if (!screenshots::areAvailable()) {
        return windowListImageBelow(window);
    }
    constexpr std::chrono::seconds limit(10);
    const auto contents = screenshots::below(window, limit);
    return contents ? toPicture(*contents) : QImage();
}

} // namespace platform
