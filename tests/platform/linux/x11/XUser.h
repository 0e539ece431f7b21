#pragma once

#include "platform/linux/x11/ModifierMapping.h"
#include "platform/linux/x11/XcbDisplay.h"

#include <memory>
#include <string>
#include <vector>

namespace desktop {

/// Waits until the server has handled everything that was asked of it on this connection.
void settle(platform::XcbDisplay& display);

/// Gives a window a property of numbers.
void setNumbers(platform::XcbDisplay& display, xcb_window_t window, const char* property,
                xcb_atom_t type, const std::vector<std::uint32_t>& values);

/// The user at keyboard and pointer: another client of the server, which posts what it likes.
class XUser {
public:
    XUser();

    void press(platform::ScanCode key);
    void release(platform::ScanCode key);
    void tap(platform::ScanCode key);
    void movePointer(std::int16_t x, std::int16_t y);
    void click(std::uint8_t button);

    /// Which keys the server has down, on whatever device.
    platform::KeySet keysDown();

    void lockGroup(std::uint8_t group);

    platform::XcbDisplay& display() { return *display_; }

private:
    void fake(std::uint8_t type, std::uint8_t detail, std::int16_t x = 0, std::int16_t y = 0);

    std::unique_ptr<platform::XcbDisplay> display_;
};

/// An application with the keyboard's focus, which writes down what it gets.
class XApplication {
public:
    XApplication();

    /// The key events so far and none of the next call: "+56/4" is key 56 going down with Control,
    /// "-56/4" coming up.
    std::vector<std::string> takeKeys();

    platform::XcbDisplay& display() { return *display_; }
    xcb_window_t window() const { return window_; }

private:
    void collect();

    std::unique_ptr<platform::XcbDisplay> display_;
    xcb_window_t window_ = XCB_NONE;
    std::vector<std::string> keys_;
};

} // namespace desktop
