#include "contracts/UserDefaultsContract.h"
#include "ConfigFolder.h"
#include "fakes/FakePlatform.h"
#include "platform/linux/freedesktop/JsonUserDefaults.h"

#include <optional>

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

using Stores = testing::Types<InMemory, InAFile>;
INSTANTIATE_TYPED_TEST_SUITE_P(Stores, UserDefaultsContract, Stores);

TEST(JsonUserDefaultsKeyTest, AnEmptyKeyIsAKey) {
    InAFile store;
    EXPECT_EQ(store.use().object(QString()), std::nullopt);
    store.use().set(QString(), 1.5);
    EXPECT_EQ(store.reopen().object(QString()), platform::DefaultsValue(1.5));
}
