#include "platform/linux/keyboard/KeyboardLayout.h"
#include "Keymaps.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

namespace {

/// The virtual key codes of the US positions that the tests speak of.
const std::map<std::string, platform::KeyCode> codes{
    {"A", 0},   {"Z", 6},  {"X", 7},  {"B", 11}, {"Q", 12}, {"Y", 16}, {"1", 18},
    {"7", 26},  {"8", 28}, {"]", 30}, {"U", 32}, {"I", 34}, {"'", 39}, {"K", 40},
    {";", 41},  {"M", 46}, {"N", 45}, {"L", 37}, {"-", 27}, {"J", 38}, {"C", 8},
    {"F7", 98}, {"G", 5},  {"T", 17}, {"2", 19}, {"5", 23}};

std::string nameOf(platform::ScanCode code) {
    for (const auto& [name, virtualKey] : codes) {
        if (platform::scanCode(virtualKey) == code) {
            return name;
        }
    }
    return std::to_string(code);
}

struct Row {
    const char* meaning;
    const char* layout;
    const char* variant;
    xkb_layout_index_t group;
    /// Pairs of the wanted key and the US position that is pressed for it; "none" for nothing.
    const char* pressed;
};

const Row table[] = {
    {"the positions' own layout", "us", "", 0, "B B 7 7 ] ]"},
    {"Y and Z change places, umlauts stay positions", "de", "", 0, "Y Z Z Y B B ' ' ; ; 7 7 ] ]"},
    {"A, Q and M move; digits are their keys although they need Shift", "fr", "", 0,
     "A Q Q A M ; 7 7 8 8 B B - -"},
    {"nearly every letter moves, punctuation does not", "us", "dvorak", 0,
     "B N X B I G 7 7 ' ' ; ;"},
    {"Colemak", "us", "colemak", 0, "B B J Y K N N J"},
    {"digits in an order of their own, behind Shift", "us", "dvp", 0, "7 2 1 5"},
    {"the key at the position carries a dotless i, whose capital is an I as well", "tr", "", 0,
     "I ' B B"},
    {"Cyrillic keeps the positions", "ru", "", 0, "B B X X 7 7"},
    {"Cyrillic with letters that look Latin", "rs", "", 0, "J J A A"},
    {"Greek keeps the positions", "gr", "", 0, "B B Q Q M M"},
    {"Hebrew carries Latin capitals behind Shift", "il", "", 0, "B B Q Q"},
    {"first of two groups", "us,ru", ",", 0, "B B"},
    {"the active group counts", "de,us", ",dvorak", 1, "B N Y T"},
    {"a group beyond the last is taken as the server does", "fr", "", 1, "A Q B B"},
    {"a Latin layout without the letter posts nothing rather than another command", "lv",
     "ergonomic", 0, "X none"},
};

} // namespace

TEST(KeyboardLayout, PressesTheKeyThatMeansTheShortcut) {
    for (const Row& row : table) {
        const auto keymap = desktop::compileKeymap({.layout = row.layout, .variant = row.variant});
        ASSERT_TRUE(keymap);
        const platform::KeyboardLayout layout(keymap, row.group);
        std::istringstream pressed(row.pressed);
        for (std::string wanted, expected; pressed >> wanted >> expected;) {
            const auto key = layout.keyFor(codes.at(wanted));
            EXPECT_EQ(key ? nameOf(*key) : "none", expected) << row.meaning << ": " << wanted;
        }
        EXPECT_EQ(layout.keyFor(codes.at("F7")), platform::scanCode(codes.at("F7")));
    }
}
