#pragma once

#include "platform/linux/PixelGeometry.h"
#include "platform/linux/atspi/Inquiry.h"

#include <optional>

namespace platform {

/// How far an application is wrong about its own place on the screen.
///
/// LibreOffice draws its own tree below the menu bar of another toolkit, and takes at times no
/// account of that bar: until the first movement of the pointer in a new or moved window. Its tree
/// begins with a root pane, which fills the window from below the menu bar to the bottom.
class OriginError {
public:
    /// What to add to the coordinates that `object` gives. Asked anew each time, since it changes.
    PixelPoint of(const ObjectReference& object, const PixelRect& clientArea, Inquiry& inquiry);

private:
    static std::optional<ObjectReference> rootPaneAround(const ObjectReference& object,
                                                         Inquiry& inquiry);

    /// The object last asked about, and the pane in which it lies, if any: these do not change.
    ObjectReference object_;
    std::optional<ObjectReference> rootPane_;
};

} // namespace platform
