#include "platform/linux/keyboard/KeyboardLayout.h"
#include "Keymaps.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

constexpr int group1 = 0;
constexpr int group2 = 1;

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
    int group;
    /// Wanted key, then the US position that is pressed for it; "none" where nothing is.
    std::map<std::string, std::string> pressed;
};

class LayoutTest : public testing::TestWithParam<Row> {};

const Row table[] = {
    {"the positions' own layout", "us", "", group1, {{"B", "B"}, {"7", "7"}, {"]", "]"}}},
    {"Y and Z change places, umlauts stay positions",
     "de",
     "",
     group1,
     {{"Y", "Z"}, {"Z", "Y"}, {"B", "B"}, {"'", "'"}, {";", ";"}, {"7", "7"}, {"]", "]"}}},
    {"A, Q and M move; digits are their keys although they need Shift",
     "fr",
     "",
     group1,
     {{"A", "Q"}, {"Q", "A"}, {"M", ";"}, {"7", "7"}, {"8", "8"}, {"B", "B"}, {"-", "-"}}},
    {"nearly every letter moves, punctuation does not",
     "us",
     "dvorak",
     group1,
     {{"B", "N"}, {"X", "B"}, {"I", "G"}, {"7", "7"}, {"'", "'"}, {";", ";"}}},
    {"Colemak", "us", "colemak", group1, {{"B", "B"}, {"J", "Y"}, {"K", "N"}, {"N", "J"}}},
    {"digits in an order of their own, behind Shift",
     "us",
     "dvp",
     group1,
     {{"7", "2"}, {"1", "5"}}},
    {"the key at the position carries a dotless i, whose capital is an I as well",
     "tr",
     "",
     group1,
     {{"I", "'"}, {"B", "B"}}},
    {"Cyrillic keeps the positions", "ru", "", group1, {{"B", "B"}, {"X", "X"}, {"7", "7"}}},
    {"Cyrillic with letters that look Latin", "rs", "", group1, {{"J", "J"}, {"A", "A"}}},
    {"Greek keeps the positions", "gr", "", group1, {{"B", "B"}, {"Q", "Q"}, {"M", "M"}}},
    {"Hebrew carries Latin capitals behind Shift", "il", "", group1, {{"B", "B"}, {"Q", "Q"}}},
    {"first of two groups", "us,ru", ",", group1, {{"B", "B"}}},
    {"the active group counts", "de,us", ",dvorak", group2, {{"B", "N"}, {"Y", "T"}}},
    {"a group beyond the last is taken as the server does",
     "fr",
     "",
     group2,
     {{"A", "Q"}, {"B", "B"}}},
    {"a Latin layout without the letter posts nothing rather than another command",
     "lv",
     "ergonomic",
     group1,
     {{"X", "none"}}},
};

} // namespace

TEST_P(LayoutTest, PressesTheKeyThatMeansTheShortcut) {
    const auto& row = GetParam();
    const auto keymap = desktop::compileKeymap({.layout = row.layout, .variant = row.variant});
    ASSERT_TRUE(keymap);
    const platform::KeyboardLayout layout(keymap, static_cast<xkb_layout_index_t>(row.group));
    for (const auto& [wanted, expected] : row.pressed) {
        const auto key = layout.keyFor(codes.at(wanted));
        EXPECT_EQ(key ? nameOf(*key) : "none", expected) << row.meaning << ": " << wanted;
    }
    EXPECT_EQ(layout.keyFor(codes.at("F7")), platform::scanCode(codes.at("F7")));
}

INSTANTIATE_TEST_SUITE_P(Layouts, LayoutTest, testing::ValuesIn(table), [](const auto& row) {
    std::string name = std::to_string(row.index) + row.param.layout + row.param.variant;
    std::erase_if(name, [](char letter) { return letter == ','; });
    return name;
});
