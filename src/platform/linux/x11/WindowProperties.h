#pragma once

#include "platform/RunningApplication.h"
#include "platform/linux/PixelGeometry.h"
#include "platform/linux/x11/XcbDisplay.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace platform {

/// What WM_CLASS says of a window.
struct WindowClass {
    QString instance;
    QString name;
};

/// Reads what windows say of themselves. A property that is absent, of another type, or of a
/// window that is gone yields nothing.
class WindowProperties {
public:
    explicit WindowProperties(XcbDisplay& display)
        : display_(display) {}

    std::vector<std::uint32_t> numbers(xcb_window_t window, const char* property,
                                       xcb_atom_t type) const;
    std::vector<xcb_window_t> windows(xcb_window_t window, const char* property) const;
    std::vector<xcb_atom_t> atoms(xcb_window_t window, const char* property) const;
    std::optional<std::uint32_t> number(xcb_window_t window, const char* property) const;
    std::optional<xcb_window_t> singleWindow(xcb_window_t window, const char* property) const;
    /// Latin-1 or UTF-8, as its type says.
    std::optional<QString> text(xcb_window_t window, const char* property) const;

    std::optional<WindowClass> windowClass(xcb_window_t window) const;

    /// The process that made a window; empty when it does not say so or runs on another machine.
    std::optional<ProcessIdentifier> process(xcb_window_t window) const;

    /// A window without its border, in the root window's pixels.
    std::optional<PixelRect> clientArea(xcb_window_t window) const;
    /// The client area less the shadow that the application says it draws there itself.
    PixelRect withoutShadow(xcb_window_t window, const PixelRect& clientArea) const;

private:
    struct Bytes {
        xcb_atom_t type = XCB_ATOM_NONE;
        int format = 0;
        QByteArray bytes;
    };
    std::optional<Bytes> read(xcb_window_t window, const char* property, xcb_atom_t type) const;

    XcbDisplay& display_;
};

} // namespace platform
