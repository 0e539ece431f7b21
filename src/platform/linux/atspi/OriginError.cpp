#include "platform/linux/atspi/OriginError.h"

#include "platform/linux/atspi/WireTypes.h"

namespace platform {

PixelPoint OriginError::of(const ObjectReference& object, const PixelRect& clientArea,
                           Inquiry& inquiry) {
    if (object != object_) {
        object_ = object;
        rootPane_ = rootPaneAround(object, inquiry);
    }
    if (!rootPane_) {
        return {};
    }
    const auto pane = inquiry.ask<Extents>(requests::extents(*rootPane_));
    if (!pane || !pane->isPlausible() || pane->width != clientArea.width ||
        pane->height > clientArea.height) {
        return {};
    }
    return {clientArea.x - pane->x, clientArea.y + clientArea.height - (pane->y + pane->height)};
}

std::optional<ObjectReference> OriginError::rootPaneAround(const ObjectReference& object,
                                                           Inquiry& inquiry) {
    constexpr int highest = 24;
    auto each = object;
    for (int level = 0; level < highest && !each.isNull(); ++level) {
        const auto replies = inquiry.askAll({requests::role(each), requests::parent(each)});
        if (Inquiry::decode<unsigned>(replies[0]) == static_cast<unsigned>(Role::RootPane)) {
            return each;
        }
        each = Inquiry::decode<ObjectReference>(replies[1]).value_or(ObjectReference());
    }
    return std::nullopt;
}

} // namespace platform
