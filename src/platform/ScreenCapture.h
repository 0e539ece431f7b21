#pragma once

#include <QImage>

#include <cstdint>

namespace platform {

/// Pictures of what is on the screen.
class ScreenCapture {
public:
    virtual ~ScreenCapture() = default;

    /// The window system's number of the program's window that has the keyboard; 0 when none has
    /// it. Main thread only.
    virtual std::int64_t keyWindowNumber() = 0;

    /// Everything on screen below a window of that number, without the window itself and without
    /// what is above it, cut to the area that those windows cover; below none (0), everything. Null
    /// when no picture could be taken. Any thread but the main one, since it takes a while.
    virtual QImage pictureBelow(std::uint32_t window) = 0;
};

} // namespace platform
