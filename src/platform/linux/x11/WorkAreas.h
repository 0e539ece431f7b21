#pragma once

#include "platform/linux/x11/ReservedEdges.h"
#include "platform/linux/x11/WindowProperties.h"
#include "platform/linux/x11/XcbConnection.h"

#include <optional>
#include <vector>

namespace platform {

/// Knows what panels leave of the screens. Read anew only after the window manager announced a
/// change. Main thread only.
class WorkAreas {
public:
    explicit WorkAreas(XcbConnection& connection);

    /// What remains of each of these screens, in their order. With one screen the window manager's
    /// own work area counts, with several what each panel reserves, since the work area is one for
    /// the whole desktop.
    std::vector<PixelRect> visibleFrames(const std::vector<PixelRect>& screens);

private:
    void handle(const xcb_generic_event_t& event);
    void readIfStale();
    std::optional<PixelRect> readWorkArea() const;

    XcbConnection& connection_;
    WindowProperties properties_;
    bool stale_ = true;
    PixelRect desktop_;
    std::optional<PixelRect> workArea_;
    std::vector<ReservedEdge> edges_;
    core::Registration events_;
};

} // namespace platform
