#pragma once

#include "platform/KeyboardEvents.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace settings {

/// The name of the key at a position, as on a US keyboard; "?" for one without a name here.
QString keyCodeToString(platform::KeyCode keyCode);

/// A shortcut as the user reads it, such as "⌥⌘F". Bits other than the four modifiers' do not show.
QString shortcutDisplayString(std::uint64_t modifiers, platform::KeyCode keyCode);

/// What is recorded of a key press with these flags: its modifiers, or nothing when it has none and
/// is therefore no shortcut.
std::optional<std::uint64_t> recordableModifiers(std::uint64_t flags);

} // namespace settings
