#include "platform/linux/freedesktop/AccessibilitySettings.h"

#include <QProcess>
#include <QStandardPaths>

#include <array>

namespace platform {

const DesktopEntry* accessibilitySettings(const DesktopEntryTable& table,
                                          const QStringList& desktops) {
    constexpr std::array<QStringView, 7> ids{
        u"gnome-universal-access-panel",       u"kcm_access",
        u"xfce4-accessibility-settings",       u"mate-at-properties",
        u"cinnamon-settings-universal-access", u"unity-universal-access-panel",
        u"org.gnome.Settings-universal-access"};
    for (const auto id : ids) {
        const auto* entry = table.withId(id.toString());
        // Another desktop's settings would open, but change nothing here.
        if (entry != nullptr && entry->isMeantFor(desktops)) {
            return entry;
        }
    }
    return nullptr;
}

bool startDetached(const DesktopEntry& application) {
    QStringList command = application.commandLine();
    if (command.isEmpty()) {
        return false;
    }
    if (!application.tryExec.isEmpty() &&
        QStandardPaths::findExecutable(application.tryExec).isEmpty()) {
        return false;
    }
    const QString program = command.takeFirst();
    return QProcess::startDetached(program, command);
}

} // namespace platform
