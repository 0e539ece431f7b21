#pragma once

#include "core/Observers.h"
#include "platform/linux/x11/OwnKeyStrokes.h"

#include <xcb/xcb.h>

#include <cstddef>
#include <functional>
#include <memory>

namespace platform {

class XcbConnection;

/// Key strokes and button presses of all the keyboards and pointers, whichever window gets them and
/// whoever grabs them, without auto-repeats and without what this program posts itself. The server
/// is asked for them only while somebody listens. Main thread only.
class XInputEvents : public std::enable_shared_from_this<XInputEvents> {
public:
    using Button = std::uint32_t;

    /// Null when the server cannot tell of events under another program's grab. `connection` and
    /// `ownStrokes` outlive this object and its registrations.
    static std::shared_ptr<XInputEvents> create(XcbConnection& connection,
                                                OwnKeyStrokes& ownStrokes);

    [[nodiscard]] core::Registration addKeyHandler(std::function<void(KeyStroke)> handler);

    /// Tells of presses.
    [[nodiscard]] core::Registration addButtonHandler(std::function<void(Button)> handler);

private:
    XInputEvents(XcbConnection& connection, OwnKeyStrokes& ownStrokes, std::uint8_t opcode);

    void handle(const xcb_generic_event_t& event);
    void handleKey(const xcb_generic_event_t& event, KeyDirection direction);
    core::Registration counted(std::size_t& listeners, core::Registration registration);
    void select();

    XcbConnection& connection_;
    OwnKeyStrokes& ownStrokes_;
    std::uint8_t opcode_;
    std::size_t keyListeners_ = 0;
    std::size_t buttonListeners_ = 0;
    core::Observers<KeyStroke> keyHandlers_;
    core::Observers<Button> buttonHandlers_;
    core::Registration events_;
};

} // namespace platform
