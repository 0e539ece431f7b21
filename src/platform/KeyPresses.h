#pragma once

#include "platform/KeyboardEvents.h"

#include <optional>

class QKeyEvent;

namespace platform {

/// What a key event of one of the program's own windows says in the system's terms. Main thread
/// only.
class KeyPresses {
public:
    virtual ~KeyPresses() = default;

    /// The key's position. Empty for a key that has no virtual key code.
    virtual std::optional<KeyCode> keyCode(const QKeyEvent& event) = 0;

    /// The modifiers held, as flags of the shortcut mask; other bits may be set besides.
    virtual std::uint64_t modifierFlags(const QKeyEvent& event) = 0;
};

} // namespace platform
