#pragma once

#include "platform/KeyboardEvents.h"

#include <cstdint>
#include <optional>

namespace platform {

/// A key as the kernel's input layer numbers it (KEY_B is 48).
using EvdevCode = std::uint16_t;

/// A key as the X server and its keymaps number it, 8 to 255.
using ScanCode = std::uint8_t;

/// A scan code is the evdev code plus this.
inline constexpr int scanCodeOffset = 8;

/// Where the key of a virtual key code sits. Empty for a code that no key here has. The keys of the
/// modifiers follow their meaning: the Command key is the Control key of this keyboard.
std::optional<EvdevCode> evdevCode(KeyCode key);
std::optional<ScanCode> scanCode(KeyCode key);

/// The virtual key code of a position. Empty for keys that have none, such as multimedia keys.
std::optional<KeyCode> virtualKeyCode(ScanCode scanCode);

} // namespace platform
