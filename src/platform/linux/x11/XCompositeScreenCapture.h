#pragma once

#include "platform/ScreenCapture.h"

namespace platform {

/// Puts a picture of the screen together from the windows' own pictures, which X Composite gives
/// whole, however much of them is covered. Each picture is taken over a connection of its own.
class XCompositeScreenCapture final : public ScreenCapture {
public:
    std::int64_t keyWindowNumber() override;
    QImage pictureBelow(std::uint32_t window) override;
};

} // namespace platform
