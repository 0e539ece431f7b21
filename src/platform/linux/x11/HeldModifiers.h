#pragma once

#include "platform/GlobalKeyMonitor.h"
#include "platform/linux/x11/ModifierMapping.h"
#include "platform/linux/x11/OwnKeyStrokes.h"

#include <optional>
#include <utility>

namespace platform {

/// Turns key strokes into key-downs with their modifier flags. Key strokes carry no modifiers, and
/// those that the server has by the time a stroke is looked at may be others already, so this
/// keeps account of the keys itself.
class HeldModifiers {
public:
    HeldModifiers() = default;

    /// `down`: the keys that are down before the first stroke.
    HeldModifiers(ModifierMapping mapping, const KeySet& down)
        : mapping_(std::move(mapping))
        , down_(down) {}

    void setMapping(ModifierMapping mapping) { mapping_ = std::move(mapping); }

    /// Empty for releases, for modifiers and locks themselves, and for keys that have no virtual
    /// key code.
    std::optional<KeyDownEvent> handle(KeyStroke stroke) {
        down_.set(stroke.key, stroke.direction == KeyDirection::Down);
        const auto key = virtualKeyCode(stroke.key);
        if (stroke.direction == KeyDirection::Up || mapping_.isModifier(stroke.key) || !key) {
            return std::nullopt;
        }
        return KeyDownEvent{*key, mapping_.flags(down_)};
    }

private:
    ModifierMapping mapping_;
    KeySet down_;
};

} // namespace platform
