#pragma once

#include "macos/fakes/c/Objects.h"

#include <CoreGraphics/CoreGraphics.h>

#include <array>
#include <vector>

namespace appleFake {

struct CaptureRequest {
    CGRect bounds;
    std::uint32_t listOption = 0;
    std::uint32_t window = 0;
    std::uint32_t imageOption = 0;
};

struct Images {
    /// What is on the screen, in rows from the top: blue, green, red, alpha.
    std::size_t width = 0;
    std::vector<std::array<unsigned char, 4>> pixels;
    bool contextCanBeMade = true;
    std::vector<CaptureRequest> captures;
};

/// The process's screen. Assign to it to start over.
Images& images();

} // namespace appleFake
