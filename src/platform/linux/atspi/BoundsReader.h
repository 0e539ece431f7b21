#pragma once

#include "platform/linux/ApplicationWindows.h"
#include "platform/linux/atspi/Inquiry.h"
#include "platform/linux/atspi/SelectionReader.h"

#include <optional>
#include <vector>

namespace platform {

/// Finds out where spans of text stand on the screen.
class BoundsReader {
public:
    BoundsReader(Inquiry& inquiry, ApplicationWindows& windows)
        : inquiry_(inquiry)
        , windows_(windows) {}

    /// The smallest rectangle around the visible part of all spans, in device pixels. Empty when
    /// the application does not tell, or none of them can be seen.
    std::optional<PixelRect> read(const std::vector<TextSpan>& spans, const ObjectReference& window,
                                  ProcessIdentifier process);

private:
    std::optional<PixelRect> unitedExtents(const std::vector<TextSpan>& pieces);
    PixelPoint offsetOf(const ObjectReference& window, const PixelRect& clientArea);

    Inquiry& inquiry_;
    ApplicationWindows& windows_;
};

} // namespace platform
