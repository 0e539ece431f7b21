#pragma once

#include <QImage>

#include <cstdint>

namespace platform {

/// A picture of everything on screen below a window, cut to what those windows cover, by the call
/// that the system has had before version 14 and that later development kits do not declare any
/// more. Null where there is no such call or no picture. Any thread.
QImage windowListImageBelow(std::uint32_t window);

} // namespace platform
