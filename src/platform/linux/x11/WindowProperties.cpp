#include "platform/linux/x11/WindowProperties.h"

#include <QSysInfo>

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

/// In units of four bytes: more than any list of windows needs.
constexpr std::uint32_t longestProperty = 16384;

} // namespace

std::optional<WindowProperties::Bytes>
WindowProperties::read(xcb_window_t window, const char* property, xcb_atom_t type) const {
    const xcb_atom_t name = display_.atom(property);
    if (name == XCB_ATOM_NONE || window == XCB_WINDOW_NONE) {
        return std::nullopt;
    }
    const auto answer = display_.reply<xcb_get_property_reply_t>(
        xcb_get_property(display_.get(), 0, window, name, type, 0, longestProperty));
    if (!answer || answer->type == XCB_ATOM_NONE ||
        (type != XCB_ATOM_ANY && answer->type != type)) {
        return std::nullopt;
    }
    return Bytes{answer->type, answer->format,
                 QByteArray(static_cast<const char*>(xcb_get_property_value(answer.get())),
                            xcb_get_property_value_length(answer.get()))};
}

std::vector<std::uint32_t> WindowProperties::numbers(xcb_window_t window, const char* property,
                                                     xcb_atom_t type) const {
    const auto value = read(window, property, type);
    if (!value || value->format != 32 || value->bytes.isEmpty()) {
        return {};
    }
    std::vector<std::uint32_t> result(static_cast<std::size_t>(value->bytes.size()) / 4);
    std::memcpy(result.data(), value->bytes.constData(), result.size() * 4);
    return result;
}

std::vector<xcb_window_t> WindowProperties::windows(xcb_window_t window,
                                                    const char* property) const {
    return numbers(window, property, XCB_ATOM_WINDOW);
}

std::vector<xcb_atom_t> WindowProperties::atoms(xcb_window_t window, const char* property) const {
    return numbers(window, property, XCB_ATOM_ATOM);
}

std::optional<std::uint32_t> WindowProperties::number(xcb_window_t window,
                                                      const char* property) const {
    const auto values = numbers(window, property, XCB_ATOM_CARDINAL);
    return values.empty() ? std::nullopt : std::optional(values.front());
}

std::optional<xcb_window_t> WindowProperties::singleWindow(xcb_window_t window,
                                                           const char* property) const {
    const auto values = windows(window, property);
    return values.empty() ? std::nullopt : std::optional(values.front());
}

std::optional<QString> WindowProperties::text(xcb_window_t window, const char* property) const {
    const auto value = read(window, property, XCB_ATOM_ANY);
    if (!value || value->format != 8) {
        return std::nullopt;
    }
    if (value->type == XCB_ATOM_STRING) {
        return QString::fromLatin1(value->bytes);
    }
    return QString::fromUtf8(value->bytes);
}

std::optional<WindowClass> WindowProperties::windowClass(xcb_window_t window) const {
    // The instance and the class, each ended by a zero byte.
    const auto value = text(window, "WM_CLASS");
    if (!value) {
        return std::nullopt;
    }
    return WindowClass{value->section(QChar::Null, 0, 0), value->section(QChar::Null, 1, 1)};
}

std::optional<ProcessIdentifier> WindowProperties::process(xcb_window_t window) const {
    const auto process = number(window, "_NET_WM_PID");
    if (!process || *process == 0) {
        return std::nullopt;
    }
    const auto machine = text(window, "WM_CLIENT_MACHINE");
    if (machine && !machine->isEmpty() && *machine != QSysInfo::machineHostName()) {
        return std::nullopt;
    }
    return static_cast<ProcessIdentifier>(*process);
}

std::optional<PixelRect> WindowProperties::clientArea(xcb_window_t window) const {
    auto* connection = display_.get();
    const auto sizeRequest = xcb_get_geometry(connection, window);
    const auto placeRequest = xcb_translate_coordinates(connection, window, display_.root(), 0, 0);
    const auto size = display_.reply<xcb_get_geometry_reply_t>(sizeRequest);
    const auto place = display_.reply<xcb_translate_coordinates_reply_t>(placeRequest);
    if (!size || !place) {
        return std::nullopt;
    }
    return PixelRect{place->dst_x, place->dst_y, size->width, size->height};
}

PixelRect WindowProperties::withoutShadow(xcb_window_t window, const PixelRect& clientArea) const {
    const auto edges = numbers(window, "_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL);
    constexpr std::uint32_t widest = 1000;
    if (edges.size() != 4 || *std::max_element(edges.begin(), edges.end()) > widest) {
        return clientArea;
    }
    const auto left = static_cast<int>(edges[0]);
    const auto right = static_cast<int>(edges[1]);
    const auto top = static_cast<int>(edges[2]);
    const auto bottom = static_cast<int>(edges[3]);
    const PixelRect visible{clientArea.x + left, clientArea.y + top,
                            clientArea.width - left - right, clientArea.height - top - bottom};
    return visible.isEmpty() ? clientArea : visible;
}

} // namespace platform
