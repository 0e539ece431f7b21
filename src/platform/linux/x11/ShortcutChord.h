#pragma once

#include "platform/linux/keyboard/KeyboardLayout.h"
#include "platform/linux/x11/ModifierMapping.h"
#include "platform/linux/x11/OwnKeyStrokes.h"

#include <optional>
#include <vector>

namespace platform {

/// The key strokes of a shortcut: the modifiers' own keys around the key, the last one pressed
/// coming up first. `flags` says which modifiers, `group` which of the keymap's layouts is active.
///
/// With some settings the modifiers' keys together do something else, such as Control and Shift
/// switching the layout. So each way to press them is tried on the keymap, and the first in which
/// exactly the wanted modifiers reach the key is taken. Empty when there is none: nothing is better
/// than another command.
std::optional<std::vector<KeyStroke>> shortcutChord(const Keymap& keymap, xkb_layout_index_t group,
                                                    const ModifierMapping& mapping, KeyCode key,
                                                    std::uint64_t flags);

} // namespace platform
