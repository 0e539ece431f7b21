#pragma once

#include "core/Observers.h"
#include "platform/linux/x11/WindowProperties.h"
#include "platform/linux/x11/XcbConnection.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

namespace platform {

/// Knows which window has the keyboard, and which one each process had last, from the window
/// manager's announcements alone: asking while nothing changed does not ask the server. Without a
/// window manager the server is asked for the input focus each time. Main thread only.
class ActiveWindow {
public:
    explicit ActiveWindow(XcbConnection& connection);

    /// The top-level window with the keyboard; empty when there is none.
    std::optional<xcb_window_t> current();

    /// Grows whenever a window becomes the active one. X gives the number of a window that is gone
    /// to a new one, so the number alone does not tell that it is still the same window.
    std::uint64_t activations() const { return activations_; }

    /// The window of a process that had the keyboard last and still exists.
    std::optional<xcb_window_t> lastOf(ProcessIdentifier process);

    bool hasWindowManager();

    /// Calls `handler` when a property of the active window changes, with the property's atom.
    [[nodiscard]] core::Registration
    addPropertyHandler(std::function<void(xcb_window_t, xcb_atom_t)> handler);

private:
    void handle(const xcb_generic_event_t& event);
    void handleRootProperty(xcb_atom_t property);
    void readActiveWindow();
    void readWindowManager();
    void watch(xcb_window_t window, std::uint32_t events);
    void setActive(xcb_window_t window);
    void forget(xcb_window_t window);
    std::optional<xcb_window_t> focusedTopLevel();

    XcbConnection& connection_;
    WindowProperties properties_;
    core::Observers<xcb_window_t, xcb_atom_t> propertyHandlers_;
    std::map<ProcessIdentifier, xcb_window_t> lastWindows_;
    xcb_window_t active_ = XCB_WINDOW_NONE;
    std::uint64_t activations_ = 0;
    /// The window by which a window manager shows that it lives.
    xcb_window_t managerSign_ = XCB_WINDOW_NONE;
    bool managed_ = false;
    /// Set when the server did not answer what a change made necessary to read.
    bool unread_ = false;
    core::Registration events_;
};

} // namespace platform
