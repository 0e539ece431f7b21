#pragma once

#include "core/Observers.h"
#include "platform/linux/x11/XcbDisplay.h"

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace platform {

/// The program's own connection to the X server, beside the toolkit's, with its events handed out
/// on the main thread. Main thread only.
class XcbConnection final : public XcbDisplay {
public:
    using EventHandler = std::function<void(const xcb_generic_event_t&)>;

    /// Null when there is no X server. Needs the application object.
    static std::shared_ptr<XcbConnection> open();

    /// Calls `handler` for every event that the server sends, in their order, for as long as the
    /// registration lives. Errors of requests without an answer are not events.
    [[nodiscard]] core::Registration addEventHandler(EventHandler handler);

    /// Adds to the events that are sent for the root window. The mask is one for the whole
    /// connection: whoever set it directly would take their events from the others.
    void addRootEvents(std::uint32_t mask);

    /// The server's time now, for requests that count only when nothing newer happened. One round
    /// trip; XCB_CURRENT_TIME when the server does not answer.
    xcb_timestamp_t serverTime();

    /// Hands out what has arrived. Happens by itself whenever the main thread is idle.
    void dispatchEvents();

private:
    explicit XcbConnection(const Opened& opened);

    QObject context_;
    QSocketNotifier notifier_;
    core::Observers<const xcb_generic_event_t&> eventHandlers_;
    std::uint32_t rootEvents_ = 0;
    /// Never shown; changing it makes the server tell the time.
    xcb_window_t clockWindow_ = XCB_WINDOW_NONE;
    bool lost_ = false;
};

} // namespace platform
