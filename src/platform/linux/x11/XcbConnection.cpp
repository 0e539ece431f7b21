#include "platform/linux/x11/XcbConnection.h"

#include <QAbstractEventDispatcher>

#include <utility>

namespace platform {

std::shared_ptr<XcbConnection> XcbConnection::open() {
    const Opened opened = openConnection();
    if (opened.connection == nullptr) {
        return nullptr;
    }
    return std::shared_ptr<XcbConnection>(new XcbConnection(opened));
}

XcbConnection::XcbConnection(const Opened& opened)
    : XcbDisplay(opened.connection, opened.screenNumber, opened.screen)
    , notifier_(xcb_get_file_descriptor(opened.connection), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &context_,
                     [this] { dispatchEvents(); });
    // Events that were read together with an answer no longer make the socket readable.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &context_, [this] { dispatchEvents(); });
}

core::Registration XcbConnection::addEventHandler(EventHandler handler) {
    return eventHandlers_.add(std::move(handler));
}

void XcbConnection::addRootEvents(std::uint32_t mask) {
    if ((rootEvents_ | mask) == rootEvents_) {
        return;
    }
    rootEvents_ |= mask;
    xcb_change_window_attributes(get(), root(), XCB_CW_EVENT_MASK, &rootEvents_);
    xcb_flush(get());
}

xcb_timestamp_t XcbConnection::serverTime() {
    const xcb_atom_t property = atom("_CORVANE_QUILLET_CLOCK");
    if (property == XCB_ATOM_NONE) {
        return XCB_CURRENT_TIME;
    }
    if (clockWindow_ == XCB_WINDOW_NONE) {
        clockWindow_ = xcb_generate_id(get());
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(get(), XCB_COPY_FROM_PARENT, clockWindow_, root(), -1, -1, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                          &events);
    }
    xcb_change_property(get(), XCB_PROP_MODE_APPEND, clockWindow_, property, XCB_ATOM_STRING, 8, 0,
                        nullptr);
    // The server sends the event before it answers what was asked after the change.
    reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(get()));
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    for (const auto& event : arrivedEvents()) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
        if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && change.window == clockWindow_) {
            time = change.time;
        }
    }
    return time;
}

void XcbConnection::dispatchEvents() {
    if (lost_) {
        return;
    }
    constexpr std::uint8_t requestFailed = 0;
    while (const auto event = nextEvent()) {
        if (event->response_type != requestFailed) {
            eventHandlers_.notify(*event);
        }
    }
    xcb_flush(get());
    if (!isAlive()) {
        lost_ = true;
        // The toolkit ends the program; a socket that stays readable would keep it busy until then.
        notifier_.setEnabled(false);
    }
}

} // namespace platform
