#include "platform/linux/atspi/ApplicationCoordinates.h"

#include <cmath>

namespace platform {

namespace {

/// The size of a window is told without its invisible edges by some and with them by others, so
/// this is a whole number and no measurement.
int pixelsPerUnit(const Extents& window, const PixelRect& clientArea) {
    constexpr int most = 8;
    if (window.width <= 0 || window.height <= 0) {
        return 1;
    }
    const long across = std::lround(double(clientArea.width) / window.width);
    const long down = std::lround(double(clientArea.height) / window.height);
    return across == down && across > 1 && across <= most ? static_cast<int>(across) : 1;
}

PixelPoint originError(const Extents& pane, const PixelRect& clientArea) {
    if (!pane.isPlausible() || pane.width != clientArea.width || pane.height > clientArea.height) {
        return {};
    }
    return {clientArea.x - pane.x, clientArea.y + clientArea.height - (pane.y + pane.height)};
}

} // namespace

PixelRect ApplicationCoordinates::toPixels(const PixelRect& said, Coordinates relativeTo,
                                           const ObjectReference& object, const WindowPlace& window,
                                           Inquiry& inquiry) {
    if (object != object_) {
        lookAround(object, inquiry);
    }
    switch (relativeTo) {
    case Coordinates::Screen:
        return fromScreen(said, window.surface, inquiry);
    case Coordinates::Window:
        return fromWindow(said, window.visible, inquiry);
    }
    return said;
}

PixelRect ApplicationCoordinates::fromScreen(const PixelRect& said, const PixelRect& clientArea,
                                             Inquiry& inquiry) const {
    if (rootPane_) {
        const auto pane = inquiry.ask<Extents>(requests::extents(*rootPane_, Coordinates::Screen));
        const auto error = pane ? originError(*pane, clientArea) : PixelPoint();
        return {said.x + error.x, said.y + error.y, said.width, said.height};
    }
    const auto window = windowExtents(Coordinates::Screen, inquiry);
    const int unit = window ? pixelsPerUnit(*window, clientArea) : 1;
    return {said.x * unit, said.y * unit, said.width * unit, said.height * unit};
}

PixelRect ApplicationCoordinates::fromWindow(const PixelRect& said, const PixelRect& visible,
                                             Inquiry& inquiry) const {
    const auto window = windowExtents(Coordinates::Window, inquiry).value_or(Extents());
    const int unit = pixelsPerUnit(window, visible);
    return {visible.x + (said.x - 2 * window.x) * unit, visible.y + (said.y - 2 * window.y) * unit,
            said.width * unit, said.height * unit};
}

/// Nothing when it is not known or means nothing.
std::optional<Extents> ApplicationCoordinates::windowExtents(Coordinates relativeTo,
                                                             Inquiry& inquiry) const {
    if (!window_ || window_->isNull()) {
        return std::nullopt;
    }
    const auto window = inquiry.ask<Extents>(requests::extents(*window_, relativeTo));
    return window && window->isPlausible() ? window : std::nullopt;
}

void ApplicationCoordinates::lookAround(const ObjectReference& object, Inquiry& inquiry) {
    constexpr int highest = 48;
    object_ = object;
    rootPane_.reset();
    window_.reset();
    ObjectReference below;
    auto each = object;
    for (int level = 0; level < highest && !each.isNull(); ++level) {
        const auto replies = inquiry.askAll({requests::role(each), requests::parent(each)});
        const auto role = Inquiry::decode<unsigned>(replies[0]);
        if (role == static_cast<unsigned>(Role::RootPane)) {
            rootPane_ = each;
            return;
        }
        if (role == static_cast<unsigned>(Role::Application)) {
            window_ = below;
            return;
        }
        below = each;
        each = Inquiry::decode<ObjectReference>(replies[1]).value_or(ObjectReference());
    }
}

} // namespace platform
