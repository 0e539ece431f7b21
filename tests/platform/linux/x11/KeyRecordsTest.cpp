#include "../keyboard/Keymaps.h"
#include "platform/linux/x11/ShortcutChord.h"

#include <gtest/gtest.h>

#include <utility>

namespace flags = platform::modifierFlags;

using platform::KeyDirection;
using platform::KeyStroke;
using platform::ModifierMapping;

namespace {

constexpr platform::ScanCode leftControl = 37;
constexpr platform::ScanCode rightControl = 105;
constexpr platform::ScanCode leftShift = 50;
constexpr platform::ScanCode rightShift = 62;
constexpr platform::ScanCode capsLock = 66;
constexpr platform::ScanCode leftAlt = 64;
constexpr platform::ScanCode keyB = 56;

// Shift, Lock, Control, Mod1 to Mod5, with gaps as servers send them; no key for Mod4.
constexpr std::uint8_t rows[] = {leftShift, rightShift, capsLock, 0, leftControl, rightControl,
                                 0,         leftAlt,    77,       0, 0,           0,
                                 0,         0,          92,       0};

ModifierMapping mapping() {
    return ModifierMapping(rows, 2);
}

} // namespace

TEST(ModifierMapping, GivesTheKeysOfAShortcutInTheOrderOfPressing) {
    using Ways = std::vector<std::vector<platform::ScanCode>>;
    EXPECT_EQ(mapping().waysToPress(flags::shift | flags::command),
              (Ways{{leftControl, leftShift},
                    {leftControl, rightShift},
                    {rightControl, leftShift},
                    {rightControl, rightShift}}));
    EXPECT_EQ(mapping().waysToPress(flags::option), Ways{{leftAlt}});
    EXPECT_EQ(mapping().waysToPress(0x100), Ways{{}});
    EXPECT_EQ(mapping().waysToPress(flags::control | flags::command), Ways{});
    EXPECT_EQ(ModifierMapping().waysToPress(flags::shift), Ways{});
}

TEST(ShortcutChord, AvoidsModifierKeysThatTogetherDoSomethingElse) {
    using Pair = std::optional<std::pair<platform::ScanCode, platform::ScanCode>>;
    const auto modifiersPressed = [](const char* option) -> Pair {
        const auto keymap = desktop::compileKeymap({.layout = "us,ru", .options = option});
        const auto chord =
            platform::shortcutChord(keymap, 0, mapping(), 11, flags::command | flags::shift);
        return chord ? Pair({(*chord)[0].key, (*chord)[1].key}) : std::nullopt;
    };
    EXPECT_EQ(modifiersPressed(""), Pair({leftControl, leftShift}));
    EXPECT_EQ(modifiersPressed("grp:alt_shift_toggle"), Pair({leftControl, leftShift}));
    EXPECT_EQ(modifiersPressed("grp:lctrl_lshift_toggle"), Pair({leftControl, rightShift}));
    EXPECT_EQ(modifiersPressed("grp:ctrl_shift_toggle"), std::nullopt);
}

TEST(OwnKeyStrokes, AreToldFromTheUsersByTheirRequest) {
    const KeyStroke down{keyB, KeyDirection::Down};
    const KeyStroke up{keyB, KeyDirection::Up};
    platform::OwnKeyStrokes own;
    own.add(10, down);
    own.add(11, up);
    EXPECT_FALSE(own.take(9, down));
    // The user's stroke between the two carries the number of the first.
    EXPECT_FALSE(own.take(10, {leftShift, KeyDirection::Down}));
    EXPECT_TRUE(own.take(10, down));
    EXPECT_FALSE(own.take(10, down));
    EXPECT_TRUE(own.take(11, up));
    EXPECT_FALSE(own.take(11, up));
}
