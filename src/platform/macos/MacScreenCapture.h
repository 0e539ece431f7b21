#pragma once

#include "platform/ScreenCapture.h"

namespace platform {

/// Pictures by the newest calls that the system has. Asks for the permission to record the screen
/// when it is missing; the picture is then null, and the next one may not be.
class MacScreenCapture final : public ScreenCapture {
public:
    std::int64_t keyWindowNumber() override;
    QImage pictureBelow(std::uint32_t window) override;
};

} // namespace platform
