#include "platform/linux/x11/ActiveWindow.h"

#include "platform/linux/x11/WindowManager.h"

namespace platform {

namespace {

constexpr std::uint8_t withoutSentFlag(std::uint8_t responseType) {
    return responseType & 0x7f;
}

} // namespace

ActiveWindow::ActiveWindow(XcbConnection& connection)
    : connection_(connection)
    , properties_(connection) {
    events_ =
        connection_.addEventHandler([this](const xcb_generic_event_t& event) { handle(event); });
    connection_.addRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE);
    readWindowManager();
    readActiveWindow();
}

core::Registration
ActiveWindow::addPropertyHandler(std::function<void(xcb_window_t, xcb_atom_t)> handler) {
    return propertyHandlers_.add(std::move(handler));
}

bool ActiveWindow::hasWindowManager() {
    connection_.dispatchEvents();
    if (unread_ && connection_.isAnswering()) {
        unread_ = false;
        readWindowManager();
        readActiveWindow();
    }
    return managed_;
}

std::optional<xcb_window_t> ActiveWindow::current() {
    if (!hasWindowManager()) {
        const auto focused = focusedTopLevel().value_or(XCB_WINDOW_NONE);
        if (focused != active_) {
            setActive(focused);
        }
    }
    return active_ == XCB_WINDOW_NONE ? std::nullopt : std::optional(active_);
}

std::optional<xcb_window_t> ActiveWindow::lastOf(ProcessIdentifier process) {
    connection_.dispatchEvents();
    const auto found = lastWindows_.find(process);
    return found == lastWindows_.end() ? std::nullopt : std::optional(found->second);
}

void ActiveWindow::handle(const xcb_generic_event_t& event) {
    switch (withoutSentFlag(event.response_type)) {
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == connection_.root()) {
            handleRootProperty(change.atom);
        } else if (change.window == managerSign_ && !managed_) {
            readWindowManager();
        } else if (change.window == active_) {
            propertyHandlers_.notify(change.window, change.atom);
        }
        break;
    }
    case XCB_DESTROY_NOTIFY: {
        const auto& destroyed = reinterpret_cast<const xcb_destroy_notify_event_t&>(event);
        if (destroyed.window == managerSign_) {
            readWindowManager();
        } else {
            forget(destroyed.window);
        }
        break;
    }
    default:
        break;
    }
}

void ActiveWindow::handleRootProperty(xcb_atom_t property) {
    if (property == connection_.atom("_NET_ACTIVE_WINDOW")) {
        readActiveWindow();
    } else if (property == connection_.atom("_NET_SUPPORTING_WM_CHECK")) {
        readWindowManager();
    }
}

void ActiveWindow::readActiveWindow() {
    const auto active = properties_.singleWindow(connection_.root(), "_NET_ACTIVE_WINDOW")
                            .value_or(XCB_WINDOW_NONE);
    unread_ = unread_ || !connection_.isAnswering();
    // Also when the number is the same: it may have been given to a new window meanwhile.
    setActive(active);
}

void ActiveWindow::readWindowManager() {
    // A window manager that died leaves its mark on the root window behind, but not the window
    // that the mark names. One that starts may mark the root window first: hence watch, then read.
    managerSign_ = windowManagerSign(connection_).value_or(XCB_WINDOW_NONE);
    managed_ = false;
    if (managerSign_ != XCB_WINDOW_NONE) {
        watch(managerSign_, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
        managed_ = isLivingSign(connection_, managerSign_);
    }
}

void ActiveWindow::watch(xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &events);
}

void ActiveWindow::setActive(xcb_window_t window) {
    active_ = window;
    ++activations_;
    if (window == XCB_WINDOW_NONE) {
        return;
    }
    watch(window, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    if (const auto process = properties_.process(window)) {
        lastWindows_[*process] = window;
    }
}

void ActiveWindow::forget(xcb_window_t window) {
    std::erase_if(lastWindows_, [window](const auto& entry) { return entry.second == window; });
    if (active_ == window) {
        active_ = XCB_WINDOW_NONE;
    }
}

std::optional<xcb_window_t> ActiveWindow::focusedTopLevel() {
    auto* connection = connection_.get();
    const auto focus =
        connection_.reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(connection));
    if (!focus || focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT ||
        focus->focus == connection_.root()) {
        return std::nullopt;
    }
    // Bounded, although no toolkit nests its windows that deep.
    xcb_window_t window = focus->focus;
    std::optional<xcb_window_t> client;
    for (int depth = 0; window != XCB_WINDOW_NONE && depth < 64; ++depth) {
        const auto tree =
            connection_.reply<xcb_query_tree_reply_t>(xcb_query_tree(connection, window));
        if (!tree) {
            return std::nullopt;
        }
        // The outermost that names an application: a frame drawn around it does not.
        if (properties_.windowClass(window) || properties_.process(window)) {
            client = window;
        }
        if (tree->parent == connection_.root()) {
            return client ? client : std::optional(window);
        }
        window = tree->parent;
    }
    return std::nullopt;
}

} // namespace platform
