#pragma once

#include "core/Published.h"
#include "platform/LoginItem.h"
#include "platform/UserDefaults.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace settings {

/// The one store of user settings: every assignment is published and then written through at
/// once. Main thread only.
class AppSettingsManager {
public:
    /// Reads every value from `defaults`, whatever is missing or mistyped falling back to its
    /// default, and the login item's state from the system. A stored key code outside 16 bits
    /// stops the process. Both must outlive the store.
    AppSettingsManager(platform::UserDefaults& defaults, platform::LoginItem& loginItem);

    /// The program's store, made from the current platform on first access; lives until the
    /// process ends.
    static AppSettingsManager& shared();

    /// Bundle identifiers in the order in which they were added.
    core::Published<QStringList> allowedApps;
    core::Published<bool> useAllApps;
    /// Seconds between the selection settling and the bar appearing; any number at all.
    core::Published<double> appearanceDelay;
    /// Whether the bar waits for the global shortcut instead of appearing by itself.
    core::Published<bool> useKeyboardShortcut;
    core::Published<std::uint16_t> shortcutKeyCode;
    core::Published<std::uint64_t> shortcutModifiers;
    /// Not stored: assigning it registers or unregisters the login item. It keeps what the user
    /// chose when that fails, and the failure is logged.
    core::Published<bool> startAtLogin;

    /// An application without an identifier is never allowed.
    bool isAppAllowed(const std::optional<QString>& bundleIdentifier) const;

    /// The stored shortcut as the user reads it, such as "⌥⌘F".
    QString shortcutDisplayString() const;

    /// Does nothing when the list already has it.
    void addApp(const QString& bundleIdentifier);
    void removeApp(const QString& bundleIdentifier);

private:
    void setStartAtLogin(bool enabled);

    platform::UserDefaults& defaults_;
    platform::LoginItem& loginItem_;
};

} // namespace settings
