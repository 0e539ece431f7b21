#include "platform/qt/QtKeyPresses.h"

#include <QKeyEvent>

#include <utility>

namespace platform {

QtKeyPresses::QtKeyPresses(Position position)
    : position_(std::move(position)) {}

std::optional<KeyCode> QtKeyPresses::keyCode(const QKeyEvent& event) {
    return position_(event);
}

std::uint64_t QtKeyPresses::modifierFlags(const QKeyEvent& event) {
    std::uint64_t flags = 0;
    const auto add = [&](Qt::KeyboardModifier held, std::uint64_t flag) {
        if (event.modifiers().testFlag(held)) {
            flags |= flag;
        }
    };
    add(Qt::ShiftModifier, platform::modifierFlags::shift);
    add(Qt::MetaModifier, platform::modifierFlags::control);
    add(Qt::AltModifier, platform::modifierFlags::option);
    add(Qt::ControlModifier, platform::modifierFlags::command);
    return flags;
}

} // namespace platform
