#include "settings/ShortcutNames.h"

#include <gtest/gtest.h>

#include <set>

using settings::keyCodeToString;
using settings::recordableModifiers;
using settings::shortcutDisplayString;

TEST(ShortcutNames, FiftyFiveKeysHaveANameOfTheirOwn) {
    std::set<QString> names;
    int named = 0;
    for (int code = 0; code <= 0xFFFF; ++code) {
        const QString name = keyCodeToString(static_cast<platform::KeyCode>(code));
        if (name != QStringLiteral("?")) {
            ++named;
            names.insert(name);
        }
    }
    EXPECT_EQ(named, 55);
    EXPECT_EQ(names.size(), 55U);
}

TEST(ShortcutNames, KeysAreNamedByTheirPositionWhereTheCodesAreOutOfOrder) {
    const std::pair<platform::KeyCode, QString> rows[]{
        {22, QStringLiteral("6")},   {23, QStringLiteral("5")},      {25, QStringLiteral("9")},
        {26, QStringLiteral("7")},   {28, QStringLiteral("8")},      {29, QStringLiteral("0")},
        {6, QStringLiteral("Z")},    {16, QStringLiteral("Y")},      {31, QStringLiteral("O")},
        {96, QStringLiteral("F5")},  {122, QStringLiteral("F1")},    {111, QStringLiteral("F12")},
        {53, QStringLiteral("Esc")}, {51, QStringLiteral("Delete")}, {30, QStringLiteral("?")},
        {44, QStringLiteral("?")},   {126, QStringLiteral("?")},     {105, QStringLiteral("?")},
    };
    for (const auto& [code, name] : rows) {
        EXPECT_EQ(keyCodeToString(code), name) << code;
    }
}

TEST(ShortcutNames, ModifiersComeInOneOrderAndOtherBitsDoNotShow) {
    EXPECT_EQ(shortcutDisplayString(0x1C0000, 11), QStringLiteral("^⌥⌘B"));
    EXPECT_EQ(shortcutDisplayString(0x1E0000, 0), QStringLiteral("^⌥⇧⌘A"));
    EXPECT_EQ(shortcutDisplayString(0xA0000, 3), QStringLiteral("⌥⇧F"));
    EXPECT_EQ(shortcutDisplayString(0x180100, 3), QStringLiteral("⌥⌘F"));
    EXPECT_EQ(shortcutDisplayString(0x100000, 30), QStringLiteral("⌘?"));
    EXPECT_EQ(shortcutDisplayString(0, 0), QStringLiteral("A"));
}

TEST(ShortcutNames, OnlyKeyPressesWithAModifierAreRecorded) {
    EXPECT_EQ(recordableModifiers(0x20000), 0x20000U);
    EXPECT_EQ(recordableModifiers(0x10000 | 0x100000 | 0x8), 0x100000U); // Caps Lock held too
    EXPECT_FALSE(recordableModifiers(0));
    EXPECT_FALSE(recordableModifiers(0x10000 | 0x800000 | 0x200000 | 0x100));
}
