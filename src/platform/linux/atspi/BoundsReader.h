#pragma once

#include "platform/linux/ApplicationWindows.h"
#include "platform/linux/atspi/ApplicationCoordinates.h"
#include "platform/linux/atspi/Inquiry.h"
#include "platform/linux/atspi/SelectionReader.h"

#include <optional>
#include <vector>

namespace platform {

/// Finds out where spans of text stand on the screen.
class BoundsReader {
public:
    BoundsReader(Inquiry& inquiry, ApplicationWindows& windows, ApplicationCoordinates& coordinates)
        : inquiry_(inquiry)
        , windows_(windows)
        , coordinates_(coordinates) {}

    /// The smallest rectangle around the visible part of all spans, in device pixels. Empty when
    /// the application does not tell, or none of them can be seen.
    std::optional<PixelRect> read(const std::vector<TextSpan>& spans, ProcessIdentifier process);

private:
    /// The smallest rectangle around the answers, as the application says it.
    static std::optional<PixelRect> unitedExtents(const std::vector<QDBusMessage>& replies);
    std::optional<PixelRect> onScreens(const PixelRect& bounds);

    Inquiry& inquiry_;
    ApplicationWindows& windows_;
    ApplicationCoordinates& coordinates_;
};

} // namespace platform
