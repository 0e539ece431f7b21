#pragma once

#include "platform/macos/ScreenPicture.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace platform::screenshots {

/// Whether the system has the calls below: from version 14 on.
bool areAvailable();

/// What the displays show of the windows below one of that number, or of all windows for 0. Empty
/// when there is no such window, when the system refuses, and when it does not answer within
/// `limit`. Any thread but the main one.
std::optional<ScreenContents> below(std::uint32_t window, std::chrono::milliseconds limit);

} // namespace platform::screenshots
