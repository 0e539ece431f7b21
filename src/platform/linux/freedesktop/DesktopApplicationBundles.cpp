#include "platform/linux/freedesktop/DesktopApplicationBundles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace platform {

namespace {

std::optional<QString> nonEmpty(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

bool isInstalled(const QString& program) {
    return QDir::isAbsolutePath(program) ? QFileInfo(program).isExecutable()
                                         : !QStandardPaths::findExecutable(program).isEmpty();
}

} // namespace

DesktopApplicationBundles::DesktopApplicationBundles(ApplicationFolders folders,
                                                     QStringList languages, QStringList desktops)
    : folders_(std::move(folders))
    , languages_(std::move(languages))
    , desktops_(std::move(desktops)) {}

QStringList DesktopApplicationBundles::folders() {
    QStringList all = folders_.system;
    all.append(folders_.user);
    all.removeDuplicates();
    return all;
}

QStringList DesktopApplicationBundles::entries(const QString& folder) {
    // What is no readable file is found out when it is opened.
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Unsorted);
}

QString DesktopApplicationBundles::suffix() {
    return QStringLiteral(".desktop");
}

std::optional<ApplicationBundle> DesktopApplicationBundles::bundle(const QString& path) {
    const QString fileName = path.section(u'/', -1);
    const QString folder = path.section(u'/', 0, -2);
    if (!fileName.endsWith(suffix())) {
        return std::nullopt;
    }
    auto entry = DesktopEntry::read(path, fileName.chopped(suffix().size()), languages_);
    if (!entry || !isListed(*entry) || isHiddenByBetterFolder(folder, fileName)) {
        return std::nullopt;
    }
    const ApplicationBundle bundle{nonEmpty(entry->id), nonEmpty(entry->name), std::nullopt};
    const std::lock_guard lock(mutex_);
    last_ = std::move(*entry);
    return bundle;
}

std::optional<IconReference> DesktopApplicationBundles::iconForFile(const QString& path) {
    QString icon;
    {
        const std::lock_guard lock(mutex_);
        if (last_.path == path) {
            icon = last_.icon;
        }
    }
    if (icon.isEmpty()) {
        const auto entry = DesktopEntry::read(path, QString(), languages_);
        icon = entry ? entry->icon : QString();
    }
    return icon.isEmpty() ? std::nullopt : std::optional(IconReference{icon});
}

bool DesktopApplicationBundles::isListed(const DesktopEntry& entry) const {
    return entry.isApplication && !entry.hidden && !entry.noDisplay &&
           entry.isMeantFor(desktops_) && (entry.tryExec.isEmpty() || isInstalled(entry.tryExec));
}

bool DesktopApplicationBundles::isHiddenByBetterFolder(const QString& folder,
                                                       const QString& fileName) const {
    // Of entries with the same id only the one that counts most is the desktop's: users and
    // administrators hide an application by an entry of their own.
    for (const QString& better : folders_.byPrecedence()) {
        if (better == folder) {
            return false;
        }
        const QString path = better + QLatin1Char('/') + fileName;
        if (QFile::exists(path)) {
            const auto entry = DesktopEntry::read(path, QString(), languages_);
            if (entry && !isListed(*entry)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace platform
