#include "platform/linux/keyboard/KeyboardLayout.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <linux/input-event-codes.h>

namespace platform {

namespace {

constexpr xkb_level_index_t plain = 0;
constexpr xkb_level_index_t shifted = 1;

struct Row {
    EvdevCode first;
    std::u32string_view characters;
};

/// What the rows of the positions' own layout carry.
constexpr auto usRows = std::to_array<Row>({
    {KEY_1, U"1234567890"},
    {KEY_Q, U"qwertyuiop"},
    {KEY_A, U"asdfghjkl"},
    {KEY_Z, U"zxcvbnm"},
});

std::optional<char32_t> letterOrDigit(KeyCode key) {
    const auto evdev = evdevCode(key);
    for (const auto& [first, characters] : usRows) {
        if (evdev && *evdev >= first && *evdev - first < static_cast<int>(characters.size())) {
            return characters[*evdev - first];
        }
    }
    return std::nullopt;
}

/// The keys that type text, without the keypad, whose digits mean other shortcuts.
constexpr bool typesText(EvdevCode code) {
    return (code >= KEY_1 && code <= KEY_EQUAL) || (code >= KEY_Q && code <= KEY_RIGHTBRACE) ||
           (code >= KEY_A && code <= KEY_GRAVE) || (code >= KEY_BACKSLASH && code <= KEY_SLASH) ||
           code == KEY_102ND || code == KEY_RO || code == KEY_YEN;
}

bool isLatinLetterOrDigit(char32_t character) {
    return (character >= U'0' && character <= U'9') ||
           (QChar::isLetter(character) && QChar::script(character) == QChar::Script_Latin);
}

} // namespace

std::optional<ScanCode> KeyboardLayout::keyFor(KeyCode key) const {
    const auto position = scanCode(key);
    const auto wanted = letterOrDigit(key);
    if (!position || !wanted) {
        return position;
    }
    for (const auto level : {plain, shifted}) {
        if (const auto found = carrier(*wanted, level, *position)) {
            return found;
        }
    }
    const bool typesAnother = isLatinLetterOrDigit(character(*position, plain)) ||
                              isLatinLetterOrDigit(character(*position, shifted));
    return typesAnother ? std::nullopt : position;
}

/// Zero for a key that types no character.
char32_t KeyboardLayout::character(ScanCode code, xkb_level_index_t level) const {
    const xkb_keysym_t* symbols = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(keymap_, code, group_, level, &symbols);
    return count == 1 ? xkb_keysym_to_utf32(symbols[0]) : U'\0';
}

std::optional<ScanCode> KeyboardLayout::carrier(char32_t wanted, xkb_level_index_t level,
                                                ScanCode preferred) const {
    const auto carries = [&](ScanCode code) {
        const char32_t found = character(code, level);
        // With Shift a letter is a capital. Only ASCII: the capital of ı is an I as well.
        return found == wanted || (found >= U'A' && found <= U'Z' && found + 0x20 == wanted);
    };
    if (carries(preferred)) {
        return preferred;
    }
    const EvdevCode last = KEY_YEN;
    for (EvdevCode evdev = KEY_1; evdev <= last; ++evdev) {
        const auto code = static_cast<ScanCode>(evdev + scanCodeOffset);
        if (typesText(evdev) && carries(code)) {
            return code;
        }
    }
    return std::nullopt;
}

} // namespace platform
