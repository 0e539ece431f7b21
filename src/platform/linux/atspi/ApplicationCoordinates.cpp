#include "platform/linux/atspi/ApplicationCoordinates.h"

#include "platform/linux/atspi/WireTypes.h"

#include <cmath>

namespace platform {

namespace {

/// The size of a window is told without its invisible edges by some and with them by others, so
/// this is a whole number and no measurement.
int pixelsPerUnit(const Extents& window, const PixelRect& clientArea) {
    constexpr int most = 8;
    if (!window.isPlausible() || window.width == 0 || window.height == 0) {
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

PixelRect ApplicationCoordinates::toPixels(const PixelRect& said, const ObjectReference& object,
                                           const PixelRect& clientArea, Inquiry& inquiry) {
    if (object != object_) {
        lookAround(object, inquiry);
    }
    if (rootPane_) {
        const auto pane = inquiry.ask<Extents>(requests::extents(*rootPane_));
        const auto error = pane ? originError(*pane, clientArea) : PixelPoint();
        return {said.x + error.x, said.y + error.y, said.width, said.height};
    }
    if (window_ && !window_->isNull()) {
        const auto window = inquiry.ask<Extents>(requests::extents(*window_));
        const int unit = window ? pixelsPerUnit(*window, clientArea) : 1;
        return {said.x * unit, said.y * unit, said.width * unit, said.height * unit};
    }
    return said;
}

void ApplicationCoordinates::lookAround(const ObjectReference& object, Inquiry& inquiry) {
    constexpr int highest = 24;
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
