#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// Where desktop entries of applications are kept. The folders need not exist.
struct ApplicationFolders {
    /// Of the system, the one that counts most first.
    QStringList system;
    /// The user's own, which counts more than all of them.
    QString user;

    /// As XDG_DATA_DIRS and XDG_DATA_HOME say, or their defaults. Relative paths are ignored.
    static ApplicationFolders fromEnvironment();

    /// All of them, the one that counts most first.
    QStringList byPrecedence() const { return QStringList{user} + system; }
};

} // namespace platform
