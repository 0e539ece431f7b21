#include "platform/linux/freedesktop/ApplicationFolders.h"

#include <QDir>

namespace platform {

ApplicationFolders ApplicationFolders::fromEnvironment() {
    ApplicationFolders folders;
    QString dataFolders = qEnvironmentVariable("XDG_DATA_DIRS");
    if (dataFolders.isEmpty()) {
        dataFolders = QStringLiteral("/usr/local/share:/usr/share");
    }
    for (const auto& folder : dataFolders.split(u':', Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(folder)) {
            folders.system.append(QDir::cleanPath(folder + QStringLiteral("/applications")));
        }
    }
    folders.system.removeDuplicates();
    QString home = qEnvironmentVariable("XDG_DATA_HOME");
    if (!QDir::isAbsolutePath(home)) {
        home = QDir::homePath() + QStringLiteral("/.local/share");
    }
    folders.user = QDir::cleanPath(home + QStringLiteral("/applications"));
    return folders;
}

} // namespace platform
