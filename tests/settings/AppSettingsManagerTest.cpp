#include "settings/AppSettingsManager.h"

#include "fakes/FakePlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using platform::DefaultsValue;
using settings::AppSettingsManager;
using testing::ElementsAre;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStdout;

namespace {

const auto allowedApps = QStringLiteral("allowedApps");
const auto useAllApps = QStringLiteral("useAllApps");
const auto appearanceDelay = QStringLiteral("appearanceDelay");
const auto useKeyboardShortcut = QStringLiteral("useKeyboardShortcut");
const auto shortcutKeyCode = QStringLiteral("shortcutKeyCode");
const auto shortcutModifiers = QStringLiteral("shortcutModifiers");
const auto notes = QStringLiteral("com.apple.Notes");

class AppSettingsManagerTest : public testing::Test {
protected:
    fakes::FakeUserDefaults defaults;
    fakes::FakeLoginItem loginItem;

    /// A store that was started with one stored value, its start's own writes forgotten.
    AppSettingsManager& startWith(const QString& key, const DefaultsValue& value) {
        defaults.values = {{key, value}};
        return start();
    }
    AppSettingsManager& start() {
        store_.emplace(defaults, loginItem);
        defaults.writes.clear();
        return *store_;
    }

private:
    std::optional<AppSettingsManager> store_;
};

using AppSettingsManagerDeathTest = AppSettingsManagerTest;

} // namespace

TEST_F(AppSettingsManagerTest, TheFirstStartStoresTheDefaults) {
    const AppSettingsManager store(defaults, loginItem);
    EXPECT_EQ(store.allowedApps.get(), QStringList{notes});
    EXPECT_TRUE(store.useAllApps);
    EXPECT_EQ(store.appearanceDelay.get(), 0.3);
    EXPECT_FALSE(store.useKeyboardShortcut);
    EXPECT_EQ(store.shortcutKeyCode.get(), 3);
    EXPECT_EQ(store.shortcutModifiers.get(), 0x180100U);
    EXPECT_FALSE(store.startAtLogin);

    EXPECT_THAT(defaults.writes,
                ElementsAre(allowedApps, useAllApps, appearanceDelay, useKeyboardShortcut,
                            shortcutKeyCode, shortcutModifiers));
    EXPECT_EQ(defaults.values, (std::map<QString, DefaultsValue>{
                                   {allowedApps, QStringList{notes}},
                                   {useAllApps, true},
                                   {appearanceDelay, 0.3},
                                   {useKeyboardShortcut, false},
                                   {shortcutKeyCode, std::int64_t{3}},
                                   {shortcutModifiers, std::uint64_t{0x180100}},
                               }));
}

TEST_F(AppSettingsManagerTest, NumbersConvertWhereTheyKeepTheirValueAndStringsNever) {
    const std::vector<std::pair<DefaultsValue, bool>> booleans{
        {false, false},
        {std::int64_t{0}, false},
        {std::int64_t{1}, true},
        {0.0, false},
        {1.0, true},
        {std::int64_t{2}, true /*default*/},
        {QStringLiteral("false"), true},
        {QStringList{}, true},
        {0.5, true},
    };
    for (const auto& [stored, expected] : booleans) {
        EXPECT_EQ(startWith(useAllApps, stored).useAllApps, expected) << stored.index();
        EXPECT_EQ(defaults.values[useAllApps], DefaultsValue(expected)) << "must be mended";
    }

    constexpr std::int64_t inexact = (std::int64_t{1} << 53) + 1;
    const std::vector<std::pair<DefaultsValue, double>> delays{
        {std::int64_t{2}, 2.0},
        {-1.5, -1.5},
        {true, 1.0},
        {inexact, 0.3},
        {std::numeric_limits<std::uint64_t>::max(), 0.3},
        {QStringLiteral("1.0"), 0.3},
    };
    for (const auto& [stored, expected] : delays) {
        EXPECT_EQ(startWith(appearanceDelay, stored).appearanceDelay, expected) << stored.index();
    }
    EXPECT_TRUE(std::isnan(startWith(appearanceDelay, std::nan("")).appearanceDelay));

    const std::vector<std::pair<DefaultsValue, int>> keyCodes{
        {std::int64_t{0}, 0},
        {40.0, 40},
        {40.5, 3},
        {1e300, 3},
        {9223372036854775808.0, 3},
        {std::nan(""), 3},
        {std::numeric_limits<std::uint64_t>::max(), 3},
        {QStringLiteral("40"), 3},
    };
    for (const auto& [stored, expected] : keyCodes) {
        EXPECT_EQ(startWith(shortcutKeyCode, stored).shortcutKeyCode, expected) << stored.index();
    }

    const std::vector<std::pair<DefaultsValue, std::uint64_t>> modifiers{
        {std::int64_t{0x120000}, 0x120000U},
        {std::int64_t{-1}, 0x180100U},
        {0.0, 0U},
        {-0.5, 0x180100U},
        {18446744073709551616.0, 0x180100U},
    };
    for (const auto& [stored, expected] : modifiers) {
        EXPECT_EQ(startWith(shortcutModifiers, stored).shortcutModifiers, expected);
    }

    EXPECT_EQ(startWith(allowedApps, notes).allowedApps.get(), QStringList{notes});
    EXPECT_EQ(startWith(allowedApps, QStringList{}).allowedApps.get(), QStringList{});
}

TEST_F(AppSettingsManagerDeathTest, AStoredKeyCodeOutside16BitsStopsTheProcess) {
    for (const std::int64_t code : {std::int64_t{-1}, std::int64_t{65536}}) {
        EXPECT_DEATH(startWith(shortcutKeyCode, code), "key code");
    }
    EXPECT_DEATH(startWith(shortcutKeyCode, 70000.0), "key code");
}

TEST_F(AppSettingsManagerTest, AnApplicationWithoutIdentifierIsNeverAllowed) {
    AppSettingsManager& store = start();
    EXPECT_FALSE(store.isAppAllowed(std::nullopt));
    EXPECT_TRUE(store.isAppAllowed(QStringLiteral("any.other")));
    store.useAllApps = false;
    EXPECT_TRUE(store.isAppAllowed(notes));
    EXPECT_FALSE(store.isAppAllowed(notes.toLower()));
    EXPECT_FALSE(store.isAppAllowed(std::nullopt));
    store.removeApp(notes);
    EXPECT_FALSE(store.isAppAllowed(notes));
}

TEST_F(AppSettingsManagerTest, TheListKeepsItsOrderAndWritesOnlyWhatItMust) {
    AppSettingsManager& store = start();
    store.addApp(notes);
    EXPECT_TRUE(defaults.writes.empty()) << "already there";
    store.addApp(QStringLiteral("b"));
    store.addApp(QStringLiteral("a"));
    EXPECT_EQ(store.allowedApps.get().join(u' '), QStringLiteral("com.apple.Notes b a"));
    store.removeApp(QStringLiteral("absent"));
    EXPECT_EQ(defaults.writes.size(), 3U) << "the list is written though nothing was removed";
    store.allowedApps = QStringList{notes, QStringLiteral("b"), notes};
    store.removeApp(notes);
    EXPECT_EQ(defaults.values[allowedApps], DefaultsValue(QStringList{QStringLiteral("b")}));
}

TEST_F(AppSettingsManagerTest, AFailingLoginItemIsLoggedAndTheChoiceKept) {
    AppSettingsManager& store = start();
    loginItem.error = QStringLiteral("100% %1 wrong");
    CaptureStdout();
    store.startAtLogin = false;
    EXPECT_EQ(GetCapturedStdout(), "Failed to disable start at login: 100% %1 wrong\n");
    CaptureStdout();
    store.startAtLogin = true;
    EXPECT_EQ(GetCapturedStdout(), "Failed to enable start at login: 100% %1 wrong\n");
    EXPECT_TRUE(store.startAtLogin);
    EXPECT_TRUE(defaults.writes.empty());
}
