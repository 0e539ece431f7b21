#include "platform/linux/keyboard/VirtualKeyCodes.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <limits>

using platform::KeyCode;
using platform::scanCode;
using platform::ScanCode;
using platform::virtualKeyCode;

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
