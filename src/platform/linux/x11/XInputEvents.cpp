#include "platform/linux/x11/XInputEvents.h"

#include "platform/linux/x11/XcbConnection.h"

#include <xcb/xinput.h>

#include <utility>

namespace platform {

namespace {

// What raw key and button events have in common.
using RawEvent = xcb_input_raw_button_press_event_t;

const RawEvent& raw(const xcb_generic_event_t& event) {
    return reinterpret_cast<const RawEvent&>(event);
}

} // namespace

std::shared_ptr<XInputEvents> XInputEvents::create(XcbConnection& connection,
                                                   OwnKeyStrokes& ownStrokes) {
    const auto* extension = xcb_get_extension_data(connection.get(), &xcb_input_id);
    if (extension == nullptr || extension->present == 0) {
        return nullptr;
    }
    // From 2.1 on raw events come under another client's grab as well.
    const auto version = connection.reply<xcb_input_xi_query_version_reply_t>(
        xcb_input_xi_query_version(connection.get(), 2, 2));
    const bool enough = version && (version->major_version > 2 ||
                                    (version->major_version == 2 && version->minor_version >= 1));
    if (!enough) {
        return nullptr;
    }
    return std::shared_ptr<XInputEvents>(
        new XInputEvents(connection, ownStrokes, extension->major_opcode));
}

XInputEvents::XInputEvents(XcbConnection& connection, OwnKeyStrokes& ownStrokes,
                           std::uint8_t opcode)
    : connection_(connection)
    , ownStrokes_(ownStrokes)
    , opcode_(opcode)
    , events_(
          connection.addEventHandler([this](const xcb_generic_event_t& event) { handle(event); })) {
}

core::Registration XInputEvents::addKeyHandler(std::function<void(KeyStroke)> handler) {
    return counted(keyListeners_, keyHandlers_.add(std::move(handler)));
}

core::Registration XInputEvents::addButtonHandler(std::function<void(Button)> handler) {
    return counted(buttonListeners_, buttonHandlers_.add(std::move(handler)));
}

core::Registration XInputEvents::counted(std::size_t& listeners, core::Registration registration) {
    ++listeners;
    select();
    auto shared = std::make_shared<core::Registration>(std::move(registration));
    return core::Registration([weak = weak_from_this(), &listeners, shared] {
        shared->reset();
        if (const auto self = weak.lock()) {
            --listeners;
            self->select();
        }
    });
}

void XInputEvents::select() {
    std::uint32_t wanted = 0;
    if (keyListeners_ > 0) {
        wanted |= XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
    }
    if (buttonListeners_ > 0) {
        wanted |= XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    }
    const struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t mask;
    } request{.mask = wanted};
    xcb_input_xi_select_events(connection_.get(), connection_.root(), 1, &request.head);
    xcb_flush(connection_.get());
}

void XInputEvents::handle(const xcb_generic_event_t& event) {
    constexpr int sentByClient = 0x80;
    if ((event.response_type & ~sentByClient) != XCB_GE_GENERIC ||
        raw(event).extension != opcode_) {
        return;
    }
    switch (raw(event).event_type) {
    case XCB_INPUT_RAW_KEY_PRESS:
        handleKey(event, KeyDirection::Down);
        break;
    case XCB_INPUT_RAW_KEY_RELEASE:
        handleKey(event, KeyDirection::Up);
        break;
    case XCB_INPUT_RAW_BUTTON_PRESS:
        buttonHandlers_.notify(raw(event).detail);
        break;
    default:
        break;
    }
}

void XInputEvents::handleKey(const xcb_generic_event_t& event, KeyDirection direction) {
    const bool repeated = (raw(event).flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0;
    const KeyStroke stroke{static_cast<ScanCode>(raw(event).detail), direction};
    if (!ownStrokes_.take(raw(event).full_sequence, stroke) && !repeated) {
        keyHandlers_.notify(stroke);
    }
}

} // namespace platform
