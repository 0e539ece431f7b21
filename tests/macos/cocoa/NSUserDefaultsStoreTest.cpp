#include "platform/macos/NSUserDefaultsStore.h"

#include "contracts/UserDefaultsContract.h"
#include "macos/cocoa/AppKitTest.h"
#include "macos/fakes/cocoa/ServicesFake.h"

#include <QTemporaryDir>

namespace {

/// The defaults of a user whose home is a new folder.
struct InUserDefaults {
    InUserDefaults() {
        qputenv("HOME", home().path().toLocal8Bit());
        cocoaFake::clearUserDefaults();
    }
    platform::UserDefaults& use() { return defaults; }
    /// Not by way of the disk: there GNUstep has a format of its own.
    platform::UserDefaults& reopen() { return other; }

    static const QTemporaryDir& home() {
        static const QTemporaryDir folder;
        return folder;
    }

    cocoaFake::Pool pool;
    platform::NSUserDefaultsStore defaults;
    platform::NSUserDefaultsStore other;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Native, UserDefaultsContract, InUserDefaults);

TEST(NSUserDefaultsStoreTest, WhatIsStoredInAnotherFormIsNoValue) {
    InUserDefaults stored;
    cocoaFake::storeInOtherForms();
    EXPECT_EQ(stored.defaults.object(QStringLiteral("date")), std::nullopt);
    EXPECT_EQ(stored.defaults.object(QStringLiteral("dictionary")), std::nullopt);
    EXPECT_EQ(stored.defaults.object(QStringLiteral("mixed array")), std::nullopt);
    EXPECT_EQ(stored.defaults.object(QStringLiteral("byte")),
              platform::DefaultsValue(std::int64_t{1}));
    EXPECT_EQ(stored.defaults.object(QStringLiteral("float")), platform::DefaultsValue(0.5));
}
