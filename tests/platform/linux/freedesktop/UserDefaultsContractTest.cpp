#include "ConfigFolder.h"
#include "fakes/FakePlatform.h"
#include "platform/linux/freedesktop/JsonUserDefaults.h"

#include <gtest/gtest.h>

#include <limits>

using platform::DefaultsValue;

namespace {

struct InMemory {
    fakes::FakeUserDefaults defaults;
    platform::UserDefaults& use() { return defaults; }
    platform::UserDefaults& reopen() { return defaults; }
};

struct InAFile {
    fakes::ConfigFolder folder;
    std::optional<platform::JsonUserDefaults> defaults;
    platform::UserDefaults& use() { return defaults ? *defaults : reopen(); }
    platform::UserDefaults& reopen() {
        return defaults.emplace(folder.path(QStringLiteral("settings.json")));
    }
};

} // namespace

template <typename Store>
class UserDefaultsContract : public testing::Test {
protected:
    Store store;
};

using Stores = testing::Types<InMemory, InAFile>;
TYPED_TEST_SUITE(UserDefaultsContract, Stores);

TYPED_TEST(UserDefaultsContract, ValuesComeBackWithTheTypeInWhichTheyWereStored) {
    const auto key = QStringLiteral("key");
    const std::vector<DefaultsValue> values{
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

TYPED_TEST(UserDefaultsContract, KeysAreToldApartExactly) {
    auto& defaults = this->store.use();
    defaults.set(QStringLiteral("key"), true);
    EXPECT_EQ(defaults.object(QStringLiteral("Key")), std::nullopt);
    EXPECT_EQ(defaults.object(QString()), std::nullopt);
    defaults.set(QString(), 1.5);
    EXPECT_EQ(this->store.reopen().object(QString()), DefaultsValue(1.5));
}
