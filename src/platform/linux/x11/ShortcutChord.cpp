#include "platform/linux/x11/ShortcutChord.h"

#include <memory>
#include <ranges>

namespace platform {

namespace {

struct UnreferenceState {
    void operator()(xkb_state* state) const { xkb_state_unref(state); }
};

std::vector<KeyStroke> strokes(const std::vector<ScanCode>& modifiers, ScanCode key) {
    std::vector<KeyStroke> result;
    for (const ScanCode modifier : modifiers) {
        result.push_back({modifier, KeyDirection::Down});
    }
    result.push_back({key, KeyDirection::Down});
    result.push_back({key, KeyDirection::Up});
    for (const ScanCode modifier : modifiers | std::views::reverse) {
        result.push_back({modifier, KeyDirection::Up});
    }
    return result;
}

/// Whether `key` gets exactly `modifiers` in that layout, and whether all is as before afterwards.
bool means(const Keymap& keymap, xkb_layout_index_t group, const std::vector<KeyStroke>& chord,
           ScanCode key, xkb_mod_mask_t modifiers) {
    const std::unique_ptr<xkb_state, UnreferenceState> state(xkb_state_new(keymap.get()));
    if (!state) {
        return false;
    }
    xkb_state_update_mask(state.get(), 0, 0, 0, 0, 0, group);
    const auto isAt = [&](xkb_mod_mask_t wanted, xkb_layout_index_t layout) {
        // Beyond the eight real modifiers stand the names for them.
        constexpr xkb_mod_mask_t real = 0xff;
        return (xkb_state_serialize_mods(state.get(), XKB_STATE_MODS_EFFECTIVE) & real) == wanted &&
               xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE) == layout;
    };
    const auto before = xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE);
    for (const auto& [code, direction] : chord) {
        if (code == key && direction == KeyDirection::Down && !isAt(modifiers, before)) {
            return false;
        }
        xkb_state_update_key(state.get(), code,
                             direction == KeyDirection::Down ? XKB_KEY_DOWN : XKB_KEY_UP);
    }
    return isAt(0, before);
}

} // namespace

std::optional<std::vector<KeyStroke>> shortcutChord(const Keymap& keymap, xkb_layout_index_t group,
                                                    const ModifierMapping& mapping, KeyCode key,
                                                    std::uint64_t flags) {
    const auto code = KeyboardLayout(keymap, group).keyFor(key);
    if (!code) {
        return std::nullopt;
    }
    for (const auto& modifiers : mapping.waysToPress(flags)) {
        auto chord = strokes(modifiers, *code);
        if (means(keymap, group, chord, *code, ModifierMapping::realModifiers(flags))) {
            return chord;
        }
    }
    return std::nullopt;
}

} // namespace platform
