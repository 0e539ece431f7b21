#pragma once

#include "platform/linux/PixelGeometry.h"
#include "platform/linux/atspi/Inquiry.h"

#include <optional>

namespace platform {

/// What an application means by the coordinates that it gives, where these are not pixels of the
/// screen.
///
/// GTK and Qt count in units of several pixels when they draw larger for a dense screen; how large
/// a unit is shows in what they say of their window, whose true size is known.
///
/// LibreOffice draws its own tree below the menu bar of another toolkit, and takes at times no
/// account of that bar: until the first movement of the pointer in a new or moved window. Its tree
/// begins with a root pane, which fills the window from below the menu bar to the bottom.
class ApplicationCoordinates {
public:
    /// A rectangle that `object` gives, in pixels of the screen. `clientArea` is where its window
    /// really is. What the application says of itself is asked anew each time, since it changes.
    PixelRect toPixels(const PixelRect& said, const ObjectReference& object,
                       const PixelRect& clientArea, Inquiry& inquiry);

private:
    void lookAround(const ObjectReference& object, Inquiry& inquiry);

    /// The object last asked about, and what it lies in, if known: these do not change.
    ObjectReference object_;
    std::optional<ObjectReference> rootPane_;
    std::optional<ObjectReference> window_;
};

} // namespace platform
