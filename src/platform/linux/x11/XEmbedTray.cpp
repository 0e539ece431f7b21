#include "platform/linux/x11/XEmbedTray.h"

#include <utility>

namespace platform {

XEmbedTray::XEmbedTray(std::shared_ptr<XcbConnection> connection)
    : connection_(std::move(connection)) {
    const std::string selection =
        "_NET_SYSTEM_TRAY_S" + std::to_string(connection_->screenNumber());
    selection_ = connection_->atom(selection.c_str());
    manager_ = connection_->atom("MANAGER");
    events_ =
        connection_->addEventHandler([this](const xcb_generic_event_t& event) { handle(event); });
    // A new manager announces itself to those who listen on the root window.
    connection_->addRootEvents(XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    look();
}

core::Registration XEmbedTray::observe(std::function<void()> handler) {
    return changed_.add(std::move(handler));
}

void XEmbedTray::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7f) {
    case XCB_CLIENT_MESSAGE: {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == manager_ && message.data.data32[1] == selection_) {
            look();
        }
        break;
    }
    case XCB_DESTROY_NOTIFY:
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == owner_) {
            look();
        }
        break;
    default:
        break;
    }
}

void XEmbedTray::look() {
    xcb_connection_t* const server = connection_->get();
    const auto reply = connection_->reply<xcb_get_selection_owner_reply_t>(
        xcb_get_selection_owner(server, selection_));
    const xcb_window_t owner = reply ? reply->owner : XCB_NONE;
    if (owner == owner_) {
        return;
    }
    owner_ = owner;
    if (owner_ != XCB_NONE) {
        constexpr std::uint32_t destruction = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(server, owner_, XCB_CW_EVENT_MASK, &destruction);
        xcb_flush(server);
    }
    changed_.notify();
}

} // namespace platform
