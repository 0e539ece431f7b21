#include "settings/ShortcutNames.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace settings {

namespace {

struct KeyName {
    platform::KeyCode keyCode;
    std::u16string_view name;
};

constexpr std::array keyNames{
    KeyName{0, u"A"},     KeyName{1, u"S"},       KeyName{2, u"D"},      KeyName{3, u"F"},
    KeyName{4, u"H"},     KeyName{5, u"G"},       KeyName{6, u"Z"},      KeyName{7, u"X"},
    KeyName{8, u"C"},     KeyName{9, u"V"},       KeyName{11, u"B"},     KeyName{12, u"Q"},
    KeyName{13, u"W"},    KeyName{14, u"E"},      KeyName{15, u"R"},     KeyName{16, u"Y"},
    KeyName{17, u"T"},    KeyName{31, u"O"},      KeyName{32, u"U"},     KeyName{34, u"I"},
    KeyName{35, u"P"},    KeyName{37, u"L"},      KeyName{38, u"J"},     KeyName{40, u"K"},
    KeyName{45, u"N"},    KeyName{46, u"M"},      KeyName{18, u"1"},     KeyName{19, u"2"},
    KeyName{20, u"3"},    KeyName{21, u"4"},      KeyName{22, u"6"},     KeyName{23, u"5"},
    KeyName{24, u"="},    KeyName{25, u"9"},      KeyName{26, u"7"},     KeyName{27, u"-"},
    KeyName{28, u"8"},    KeyName{29, u"0"},      KeyName{49, u"Space"}, KeyName{36, u"Return"},
    KeyName{48, u"Tab"},  KeyName{51, u"Delete"}, KeyName{53, u"Esc"},   KeyName{122, u"F1"},
    KeyName{120, u"F2"},  KeyName{99, u"F3"},     KeyName{118, u"F4"},   KeyName{96, u"F5"},
    KeyName{97, u"F6"},   KeyName{98, u"F7"},     KeyName{100, u"F8"},   KeyName{101, u"F9"},
    KeyName{109, u"F10"}, KeyName{103, u"F11"},   KeyName{111, u"F12"},
};
static_assert(keyNames.size() == 55);

struct ModifierGlyph {
    std::uint64_t flag;
    char16_t glyph;
};

/// In the order in which they are shown. Control is the plain caret.
constexpr std::array modifierGlyphs{
    ModifierGlyph{platform::modifierFlags::control, u'^'},
    ModifierGlyph{platform::modifierFlags::option, u'\u2325'},
    ModifierGlyph{platform::modifierFlags::shift, u'\u21E7'},
    ModifierGlyph{platform::modifierFlags::command, u'\u2318'},
};

} // namespace

QString keyCodeToString(platform::KeyCode keyCode) {
    const auto found = std::find_if(keyNames.begin(), keyNames.end(),
                                    [=](const KeyName& key) { return key.keyCode == keyCode; });
    return found == keyNames.end() ? QStringLiteral("?")
                                   : QString::fromStdU16String(std::u16string(found->name));
}

QString shortcutDisplayString(std::uint64_t modifiers, platform::KeyCode keyCode) {
    QString shown;
    for (const auto& modifier : modifierGlyphs) {
        if ((modifiers & modifier.flag) != 0) {
            shown.append(QChar(modifier.glyph));
        }
    }
    return shown + keyCodeToString(keyCode);
}

std::optional<std::uint64_t> recordableModifiers(std::uint64_t flags) {
    const std::uint64_t modifiers = flags & platform::modifierFlags::mask;
    return modifiers == 0 ? std::nullopt : std::optional(modifiers);
}

} // namespace settings
