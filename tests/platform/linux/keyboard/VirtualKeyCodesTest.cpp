#include "platform/linux/keyboard/VirtualKeyCodes.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <limits>

using platform::KeyCode;
using platform::scanCode;
using platform::ScanCode;
using platform::virtualKeyCode;

TEST(VirtualKeyCodes, NameThePositionsOfTheKeyboard) {
    // The irregular places of the numbering, and one key of each block.
    EXPECT_EQ(platform::evdevCode(11), KEY_B);
    EXPECT_EQ(platform::evdevCode(22), KEY_6);
    EXPECT_EQ(platform::evdevCode(23), KEY_5);
    EXPECT_EQ(platform::evdevCode(24), KEY_EQUAL);
    EXPECT_EQ(platform::evdevCode(25), KEY_9);
    EXPECT_EQ(platform::evdevCode(26), KEY_7);
    EXPECT_EQ(platform::evdevCode(30), KEY_RIGHTBRACE);
    EXPECT_EQ(platform::evdevCode(39), KEY_APOSTROPHE);
    EXPECT_EQ(platform::evdevCode(103), KEY_F11);
    EXPECT_EQ(platform::evdevCode(109), KEY_F10);
    EXPECT_EQ(platform::evdevCode(126), KEY_UP);
    EXPECT_EQ(platform::evdevCode(89), KEY_KP7);
    EXPECT_EQ(scanCode(53), 9);
}

TEST(VirtualKeyCodes, GoBothWaysWithoutTwoNamesForOneKey) {
    int keys = 0;
    for (int key = 0; key <= std::numeric_limits<KeyCode>::max(); ++key) {
        const auto code = static_cast<KeyCode>(key);
        if (const auto scan = scanCode(code)) {
            EXPECT_EQ(virtualKeyCode(*scan), code);
            ++keys;
        }
    }
    EXPECT_GT(keys, 100);
}

TEST(VirtualKeyCodes, KeysWithoutANameHaveNone) {
    EXPECT_EQ(virtualKeyCode(static_cast<ScanCode>(KEY_PLAYPAUSE + platform::scanCodeOffset)),
              std::nullopt);
    // Below the first key of all.
    EXPECT_EQ(virtualKeyCode(0), std::nullopt);
    EXPECT_EQ(virtualKeyCode(7), std::nullopt);
    EXPECT_EQ(scanCode(66), std::nullopt);
    EXPECT_EQ(scanCode(0xffff), std::nullopt);
}
