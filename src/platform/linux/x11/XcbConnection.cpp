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

core::Registration XcbConnection::addLostHandler(std::function<void()> handler) {
    return lostHandlers_.add(std::move(handler));
}

void XcbConnection::addRootEvents(std::uint32_t mask) {
    if ((rootEvents_ | mask) == rootEvents_) {
        return;
    }
    rootEvents_ |= mask;
    xcb_change_window_attributes(get(), root(), XCB_CW_EVENT_MASK, &rootEvents_);
    xcb_flush(get());
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
        notifier_.setEnabled(false);
        lostHandlers_.notify();
    }
}

} // namespace platform
