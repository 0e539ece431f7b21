#pragma once

#include "platform/ApplicationBundles.h"
#include "platform/linux/freedesktop/ApplicationFolders.h"
#include "platform/linux/freedesktop/DesktopEntry.h"

#include <mutex>

namespace platform {

/// The installed applications are the desktop entries that the desktop lists in its menus.
class DesktopApplicationBundles final : public ApplicationBundles {
public:
    /// `languages` best first, as keys are suffixed with them; `desktops` are the names of the
    /// running one.
    DesktopApplicationBundles(ApplicationFolders folders, QStringList languages,
                              QStringList desktops);

    /// Those of the system, then the user's.
    QStringList folders() override;
    QStringList entries(const QString& folder) override;
    QString suffix() override;
    std::optional<ApplicationBundle> bundle(const QString& path) override;
    std::optional<IconReference> iconForFile(const QString& path) override;

private:
    bool isListed(const DesktopEntry& entry) const;
    bool isHiddenByBetterFolder(const QString& folder, const QString& fileName) const;

    const ApplicationFolders folders_;
    const QStringList languages_;
    const QStringList desktops_;
    std::mutex mutex_;
    /// The entry that was read last: its icon is asked for right after it.
    DesktopEntry last_;
};

} // namespace platform
