#pragma once

#include "platform/linux/x11/XcbDisplay.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QRegion>

#include <optional>
#include <vector>

namespace platform {

/// The top-level windows of a server, drawn off screen for as long as this object lives, so that
/// each of them is complete although others cover it. Where a compositor runs they are so anyway.
class RedirectedWindows {
public:
    /// Null when the server cannot do it.
    static std::unique_ptr<RedirectedWindows> of(XcbDisplay& display);
    ~RedirectedWindows();
    RedirectedWindows(const RedirectedWindows&) = delete;
    RedirectedWindows& operator=(const RedirectedWindows&) = delete;

    /// The visible ones from the lowest to the highest, without `window` (or the frame that holds
    /// it) and what is above; all of them below XCB_WINDOW_NONE. Empty when the window is gone or
    /// the server does not answer.
    std::vector<xcb_window_t> below(xcb_window_t window);

    struct Place {
        xcb_window_t window = XCB_WINDOW_NONE;
        int depth = 0;
        /// The part of the window, frame included, that lies where it was looked for.
        QRect part;
        /// What of it the window really has, on the root window.
        QRegion shape;
        /// The part's corner, on the root window.
        QPoint corner;
    };

    /// Where a window is within `area` of the root window; empty when it is gone, has nothing
    /// there, or its pixels are of a kind that nobody uses any more.
    std::optional<Place> place(xcb_window_t window, const QRect& area);

    /// The picture of that part of a window; null when the window is gone.
    QImage picture(const Place& place);

private:
    explicit RedirectedWindows(XcbDisplay& display);

    bool isVisible(xcb_window_t window);
    std::optional<xcb_window_t> topLevelOf(xcb_window_t window);
    QImage pixels(xcb_pixmap_t pixmap, const QRect& part, int depth);
    std::optional<QRegion> shapeOf(xcb_window_t window);

    XcbDisplay& display_;
    bool hasShapes_ = false;
};

} // namespace platform
