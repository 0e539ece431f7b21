#pragma once

#include "platform/Geometry.h"

#include <QColor>
#include <QSize>

#include <cstdint>
#include <optional>
#include <vector>

/// The screen as the capturing framework and tests see it.
namespace cocoaFake {

struct ShownWindow {
    std::uint32_t number = 0;
    platform::Rect frame;
};

struct Display {
    platform::Rect frame;
    double pixelsPerPoint = 1;
    QColor color;
};

struct Capture {
    std::vector<std::uint32_t> windows;
    QSize pixels;
    bool cursor = true;
    bool shadows = true;

    bool operator==(const Capture&) const = default;
};

enum class Answers { Now, FromAnotherThread, Never };

struct Screenshots {
    /// From the front to the back.
    std::vector<ShownWindow> windows;
    std::vector<Display> displays;
    Answers answers = Answers::Now;
    bool refuses = false;
    std::vector<Capture> captures;
    /// Handlers that were never called.
    int unanswered = 0;
};

Screenshots& screenshots();

} // namespace cocoaFake
