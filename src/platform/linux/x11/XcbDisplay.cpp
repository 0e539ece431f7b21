#include "platform/linux/x11/XcbDisplay.h"

#include <poll.h>
#include <xcb/xcbext.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace platform {

XcbDisplay::Opened XcbDisplay::openConnection() {
    Opened opened;
    opened.connection = xcb_connect(nullptr, &opened.screenNumber);
    if (xcb_connection_has_error(opened.connection) == 0) {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(opened.connection));
        for (int number = 0; screens.rem > 0; ++number, xcb_screen_next(&screens)) {
            if (number == opened.screenNumber) {
                opened.screen = screens.data;
            }
        }
    }
    if (opened.screen == nullptr) {
        xcb_disconnect(opened.connection);
        return {};
    }
    return opened;
}

std::unique_ptr<XcbDisplay> XcbDisplay::connect(std::chrono::milliseconds limit) {
    const Opened opened = openConnection();
    if (opened.connection == nullptr) {
        return nullptr;
    }
    return std::unique_ptr<XcbDisplay>(
        new XcbDisplay(opened.connection, opened.screenNumber, opened.screen, limit));
}

XcbDisplay::XcbDisplay(xcb_connection_t* connection, int screenNumber, xcb_screen_t* screen,
                       std::chrono::milliseconds limit)
    : connection_(connection)
    , screenNumber_(screenNumber)
    , screen_(screen)
    , limit_(limit) {}

XcbDisplay::~XcbDisplay() {
    xcb_disconnect(connection_);
}

xcb_atom_t XcbDisplay::atom(const char* name) {
    const std::string_view key(name);
    if (const auto known = atoms_.find(key); known != atoms_.end()) {
        return known->second;
    }
    const auto answer = reply<xcb_intern_atom_reply_t>(
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(key.size()), key.data()));
    if (!answer) {
        return XCB_ATOM_NONE;
    }
    return atoms_.emplace(key, answer->atom).first->second;
}

XcbPointer<xcb_generic_event_t> XcbDisplay::nextEvent() {
    if (!arrived_.empty()) {
        auto event = std::move(arrived_.front());
        arrived_.pop_front();
        return event;
    }
    return XcbPointer<xcb_generic_event_t>(xcb_poll_for_event(connection_));
}

void* XcbDisplay::awaitReply(unsigned int sequence) {
    const auto now = std::chrono::steady_clock::now();
    const auto deadline = now < silentUntil_ ? now : now + limit_;
    xcb_flush(connection_);
    for (;;) {
        void* reply = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (xcb_poll_for_reply(connection_, sequence, &reply, &error) != 0) {
            std::free(error);
            return reply;
        }
        // Only asking for events makes xcb read from the server without blocking.
        if (auto* event = xcb_poll_for_event(connection_)) {
            arrived_.emplace_back(event);
            continue;
        }
        if (xcb_poll_for_reply(connection_, sequence, &reply, &error) != 0) {
            std::free(error);
            return reply;
        }
        const auto remaining = std::chrono::ceil<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (remaining.count() <= 0) {
            return giveUp(sequence);
        }
        pollfd readable{xcb_get_file_descriptor(connection_), POLLIN, 0};
        if (poll(&readable, 1, static_cast<int>(remaining.count())) < 0 && errno != EINTR) {
            return giveUp(sequence);
        }
    }
}

void* XcbDisplay::giveUp(unsigned int sequence) {
    // Many reads follow one another in one poll of the selection: only the first may wait. What
    // goes unanswered during the silence does not prolong it, or a server that is asked often
    // would never be listened to again.
    const auto now = std::chrono::steady_clock::now();
    if (now >= silentUntil_) {
        silentUntil_ = now + silence;
    }
    xcb_discard_reply(connection_, sequence);
    return nullptr;
}

} // namespace platform
