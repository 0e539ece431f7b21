#pragma once

#include "platform/linux/keyboard/KeyboardLayout.h"

namespace desktop {

struct KeymapNames {
    const char* layout = "us";
    const char* variant = "";
    const char* options = "";
};

/// The keymap that an X server would have with these settings.
inline platform::Keymap compileKeymap(const KeymapNames& names) {
    auto* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    const xkb_rule_names rules{.rules = "evdev",
                               .model = "pc105",
                               .layout = names.layout,
                               .variant = names.variant,
                               .options = names.options};
    platform::Keymap keymap(
        xkb_keymap_new_from_names(context, &rules, XKB_KEYMAP_COMPILE_NO_FLAGS));
    xkb_context_unref(context);
    return keymap;
}

} // namespace desktop
