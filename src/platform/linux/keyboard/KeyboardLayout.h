#pragma once

#include "platform/linux/keyboard/VirtualKeyCodes.h"

#include <xkbcommon/xkbcommon.h>

#include <memory>
#include <optional>

namespace platform {

struct UnreferenceKeymap {
    void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
};
using Keymap = std::unique_ptr<xkb_keymap, UnreferenceKeymap>;

/// Says which key to press so that a shortcut means the same on every keyboard layout.
class KeyboardLayout {
public:
    /// `group` is the active one of the layouts that the keymap holds; any number is taken as the
    /// server would take it.
    KeyboardLayout(const Keymap& keymap, xkb_layout_index_t group)
        : keymap_(keymap.get())
        , group_(group) {}

    /// Applications look for the letter of a shortcut, and on another layout the key at its usual
    /// place may type another one, with a command of its own. So letters and digits go to the key
    /// that carries them. Where no key does (Cyrillic, Greek, …) applications go by the place, and
    /// so does this; every other key is its place.
    ///
    /// A key that carries what is wanted only together with Shift (digits in France) counts, after
    /// those that carry it alone; Shift itself is never added, since it makes another shortcut.
    ///
    /// Empty when there is no such key: the place types another Latin letter or digit and no key
    /// types the wanted one.
    std::optional<ScanCode> keyFor(KeyCode key) const;

private:
    char32_t character(ScanCode code, xkb_level_index_t level) const;
    std::optional<ScanCode> carrier(char32_t wanted, xkb_level_index_t level,
                                    ScanCode preferred) const;

    xkb_keymap* keymap_;
    xkb_layout_index_t group_;
};

} // namespace platform
