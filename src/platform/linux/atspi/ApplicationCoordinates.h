#pragma once

#include "platform/linux/ApplicationWindows.h"
#include "platform/linux/atspi/Inquiry.h"
#include "platform/linux/atspi/WireTypes.h"

#include <optional>

namespace platform {

/// What an application means by the coordinates that it gives.
///
/// GTK and Qt count in units of several pixels when they draw larger for a dense screen; how large
/// a unit is shows in what they say of their window, whose true size is known.
///
/// LibreOffice draws its own tree below the menu bar of another toolkit, and takes at times no
/// account of that bar: until the first movement of the pointer in a new or moved window. Its tree
/// begins with a root pane, which fills the window from below the menu bar to the bottom.
///
/// GTK 4 knows nothing of the screen and counts from the window's visible corner. Where it draws a
/// solid border around the window for want of a shadow, it counts from inside that border, says so
/// of the window, and forgets the border once more.
class ApplicationCoordinates {
public:
    /// A rectangle that `object` gives, in pixels of the screen. `window` is where its window
    /// really is. What the application says of itself is asked anew each time, since it changes.
    PixelRect toPixels(const PixelRect& said, Coordinates relativeTo, const ObjectReference& object,
                       const WindowPlace& window, Inquiry& inquiry);

private:
    PixelRect fromScreen(const PixelRect& said, const PixelRect& clientArea,
                         Inquiry& inquiry) const;
    PixelRect fromWindow(const PixelRect& said, const PixelRect& visible, Inquiry& inquiry) const;
    std::optional<Extents> windowExtents(Coordinates relativeTo, Inquiry& inquiry) const;
    void lookAround(const ObjectReference& object, Inquiry& inquiry);

    /// The object last asked about, and what it lies in, if known: these do not change.
    ObjectReference object_;
    std::optional<ObjectReference> rootPane_;
    std::optional<ObjectReference> window_;
};

} // namespace platform
