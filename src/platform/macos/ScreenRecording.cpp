#include "platform/macos/ScreenRecording.h"

#include <CoreGraphics/CoreGraphics.h>

namespace platform::screenRecording {

bool isPermitted() {
    return CGPreflightScreenCaptureAccess();
}

bool request() {
    return CGRequestScreenCaptureAccess();
}

} // namespace platform::screenRecording
