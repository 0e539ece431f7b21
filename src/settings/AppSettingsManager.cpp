#include "settings/AppSettingsManager.h"

#include "core/Fatal.h"
#include "core/Log.h"
#include "platform/Platform.h"
#include "settings/DefaultsConversion.h"
#include "settings/ShortcutNames.h"

#include <limits>

namespace settings {

namespace {

namespace key {
const auto allowedApps = QStringLiteral("allowedApps");
const auto useAllApps = QStringLiteral("useAllApps");
const auto appearanceDelay = QStringLiteral("appearanceDelay");
const auto useKeyboardShortcut = QStringLiteral("useKeyboardShortcut");
const auto shortcutKeyCode = QStringLiteral("shortcutKeyCode");
const auto shortcutModifiers = QStringLiteral("shortcutModifiers");
} // namespace key

constexpr bool defaultUseAllApps = true;
constexpr double defaultAppearanceDelay = 0.3;
constexpr bool defaultUseKeyboardShortcut = false;
constexpr std::uint16_t defaultKeyCode = 3; // the key labelled F
// Option and Command plus a bit that no key press matches: the shortcut stays silent until the
// user records one.
constexpr std::uint64_t defaultModifiers = 0x180100;

std::uint16_t keyCode(std::int64_t stored) {
    if (stored < 0 || stored > std::numeric_limits<std::uint16_t>::max()) {
        core::fatal(QStringLiteral("the stored key code %1 is none").arg(stored));
    }
    return static_cast<std::uint16_t>(stored);
}

} // namespace

AppSettingsManager::AppSettingsManager(platform::UserDefaults& defaults,
                                       platform::LoginItem& loginItem)
    : allowedApps({}, [this](const auto& apps) { defaults_.set(key::allowedApps, apps); })
    , useAllApps(defaultUseAllApps, [this](bool all) { defaults_.set(key::useAllApps, all); })
    , appearanceDelay(defaultAppearanceDelay,
                      [this](double delay) { defaults_.set(key::appearanceDelay, delay); })
    , useKeyboardShortcut(defaultUseKeyboardShortcut,
                          [this](bool use) { defaults_.set(key::useKeyboardShortcut, use); })
    , shortcutKeyCode(
          defaultKeyCode,
          [this](std::uint16_t code) { defaults_.set(key::shortcutKeyCode, std::int64_t{code}); })
    , shortcutModifiers(
          defaultModifiers,
          [this](std::uint64_t flags) { defaults_.set(key::shortcutModifiers, flags); })
    , startAtLogin(false, [this](bool enabled) { setStartAtLogin(enabled); })
    , defaults_(defaults)
    , loginItem_(loginItem) {
    const auto stored = [&](const QString& name) { return defaults_.object(name); };
    allowedApps = toStringList(stored(key::allowedApps))
                      .value_or(QStringList{QStringLiteral("com.apple.Notes")});
    useAllApps = toBool(stored(key::useAllApps)).value_or(defaultUseAllApps);
    appearanceDelay = toDouble(stored(key::appearanceDelay)).value_or(defaultAppearanceDelay);
    useKeyboardShortcut =
        toBool(stored(key::useKeyboardShortcut)).value_or(defaultUseKeyboardShortcut);
    shortcutKeyCode = keyCode(toSigned(stored(key::shortcutKeyCode)).value_or(defaultKeyCode));
    shortcutModifiers = toUnsigned(stored(key::shortcutModifiers)).value_or(defaultModifiers);
    // Assigning what the system says registers an enabled item again, which mends a registration
    // that points at an earlier place of the program.
    startAtLogin = loginItem_.status() == platform::LoginItemStatus::Enabled;
}

AppSettingsManager& AppSettingsManager::shared() {
    static AppSettingsManager instance(*platform::current().userDefaults,
                                       *platform::current().loginItem);
    return instance;
}

bool AppSettingsManager::isAppAllowed(const std::optional<QString>& bundleIdentifier) const {
    if (!bundleIdentifier) {
        return false;
    }
    return useAllApps || allowedApps.get().contains(*bundleIdentifier);
}

QString AppSettingsManager::shortcutDisplayString() const {
    return settings::shortcutDisplayString(shortcutModifiers.get(), shortcutKeyCode.get());
}

void AppSettingsManager::addApp(const QString& bundleIdentifier) {
    if (!allowedApps.get().contains(bundleIdentifier)) {
        allowedApps = allowedApps.get() + QStringList{bundleIdentifier};
    }
}

void AppSettingsManager::removeApp(const QString& bundleIdentifier) {
    QStringList remaining = allowedApps;
    remaining.removeAll(bundleIdentifier);
    allowedApps = remaining;
}

void AppSettingsManager::setStartAtLogin(bool enabled) {
    const auto error = enabled ? loginItem_.registerItem() : loginItem_.unregisterItem();
    if (error) {
        core::logLine(QStringLiteral("Failed to %1 start at login: %2")
                          .arg(enabled ? u"enable" : u"disable", *error));
    }
}

} // namespace settings
