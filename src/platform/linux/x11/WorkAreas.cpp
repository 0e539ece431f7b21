#include "platform/linux/x11/WorkAreas.h"

#include <algorithm>

namespace platform {

namespace {

PixelRect intersection(const PixelRect& one, const PixelRect& other) {
    const int left = std::max(one.x, other.x);
    const int top = std::max(one.y, other.y);
    const int right = std::min(one.x + one.width, other.x + other.width);
    const int bottom = std::min(one.y + one.height, other.y + other.height);
    return {left, top, right - left, bottom - top};
}

} // namespace

WorkAreas::WorkAreas(XcbConnection& connection)
    : connection_(connection)
    , properties_(connection) {
    events_ =
        connection_.addEventHandler([this](const xcb_generic_event_t& event) { handle(event); });
    connection_.addRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

void WorkAreas::handle(const xcb_generic_event_t& event) {
    const auto type = event.response_type & 0x7f;
    if (type == XCB_CONFIGURE_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        stale_ = stale_ || change.window == connection_.root();
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window != connection_.root() || stale_) {
            return;
        }
        // A window manager that recounts what panels reserve writes the work area again.
        for (const char* name : {"_NET_WORKAREA", "_NET_CURRENT_DESKTOP", "_NET_CLIENT_LIST"}) {
            stale_ = stale_ || change.atom == connection_.atom(name);
        }
    }
}

void WorkAreas::readIfStale() {
    connection_.dispatchEvents();
    if (!stale_) {
        return;
    }
    const auto desktop = properties_.clientArea(connection_.root());
    if (!desktop) {
        return;
    }
    stale_ = false;
    desktop_ = *desktop;
    workArea_ = readWorkArea();
    edges_.clear();
    for (const auto window : properties_.windows(connection_.root(), "_NET_CLIENT_LIST")) {
        auto edges =
            reservedEdges(properties_.numbers(window, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL));
        if (edges.empty()) {
            edges = reservedEdges(properties_.numbers(window, "_NET_WM_STRUT", XCB_ATOM_CARDINAL));
        }
        edges_.insert(edges_.end(), edges.begin(), edges.end());
    }
}

std::optional<PixelRect> WorkAreas::readWorkArea() const {
    const auto areas = properties_.numbers(connection_.root(), "_NET_WORKAREA", XCB_ATOM_CARDINAL);
    const auto desktop = properties_.number(connection_.root(), "_NET_CURRENT_DESKTOP");
    const std::size_t first = std::size_t{4} * desktop.value_or(0);
    if (areas.size() < 4 || areas.size() - 4 < first) {
        return std::nullopt;
    }
    return PixelRect{static_cast<int>(areas[first]), static_cast<int>(areas[first + 1]),
                     static_cast<int>(areas[first + 2]), static_cast<int>(areas[first + 3])};
}

std::vector<PixelRect> WorkAreas::visibleFrames(const std::vector<PixelRect>& screens) {
    readIfStale();
    std::vector<PixelRect> result;
    for (const auto& screen : screens) {
        if (screens.size() == 1 && workArea_ && !intersection(*workArea_, screen).isEmpty()) {
            result.push_back(intersection(*workArea_, screen));
        } else {
            result.push_back(visibleFrame(screen, desktop_, edges_));
        }
    }
    return result;
}

} // namespace platform
