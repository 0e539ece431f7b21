#pragma once

#include "platform/UserDefaults.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

/// What every store of user defaults keeps to. A Store has use() and reopen(), which answers the
/// same defaults as the next start of the program finds them.
template <typename Store>
class UserDefaultsContract : public testing::Test {
protected:
    Store store;
};

TYPED_TEST_SUITE_P(UserDefaultsContract);

TYPED_TEST_P(UserDefaultsContract, ValuesComeBackWithTheTypeInWhichTheyWereStored) {
    const auto key = QStringLiteral("key");
    const std::vector<platform::DefaultsValue> values{
        true,
        false,
        std::int64_t{1},
        std::numeric_limits<std::int64_t>::min(),
        std::numeric_limits<std::uint64_t>::max(),
        2.0,
        0.1,
        -1e-300,
        QString(),
        QStringLiteral("true"),
        QStringLiteral("\"\\\n\u00e4\U0001F600"),
        QStringList(),
        QStringList{QStringLiteral("b"), QString(), QStringLiteral("a")},
    };
    EXPECT_EQ(this->store.use().object(key), std::nullopt);
    for (std::size_t i = 0; i < values.size(); ++i) {
        this->store.use().set(key, values[i]);
        EXPECT_EQ(this->store.use().object(key), values[i]) << "row " << i;
        EXPECT_EQ(this->store.reopen().object(key), values[i]) << "row " << i;
    }
}

TYPED_TEST_P(UserDefaultsContract, KeysAreToldApartExactly) {
    auto& defaults = this->store.use();
    defaults.set(QStringLiteral("key"), true);
    EXPECT_EQ(defaults.object(QStringLiteral("Key")), std::nullopt);
    defaults.set(QStringLiteral("Key"), 1.5);
    EXPECT_EQ(this->store.reopen().object(QStringLiteral("key")), platform::DefaultsValue(true));
}

REGISTER_TYPED_TEST_SUITE_P(UserDefaultsContract, ValuesComeBackWithTheTypeInWhichTheyWereStored,
                            KeysAreToldApartExactly);
