#pragma once

#include "platform/linux/freedesktop/KeyFile.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace platform {

/// What one .desktop file says of an application.
struct DesktopEntry {
    /// The desktop-file id without its suffix, such as "org.gnome.Gnote".
    QString id;
    QString path;
    /// In the user's language.
    QString name;
    QString icon;
    QString startupWindowClass;
    /// The command line as the file has it, escapes of the string type resolved.
    QString exec;
    QString tryExec;
    /// The file name of the program that it starts, looking through a leading "env".
    QString program;
    QStringList onlyShowIn;
    QStringList notShowIn;
    bool isApplication = false;
    /// Not to be listed in menus, although it exists.
    bool noDisplay = false;
    /// To be treated as if it did not exist, nor any of the same id in a folder that counts less.
    bool hidden = false;
    bool terminal = false;

    /// Empty when there is no readable desktop entry at that path.
    static std::optional<DesktopEntry> read(const QString& path, const QString& id,
                                            const QStringList& languages);
    static std::optional<DesktopEntry> from(const KeyFile& file, const QStringList& languages);

    /// Whether one of these desktops is among those for which it is meant.
    bool isMeantFor(const QStringList& desktops) const;

    /// The program and its arguments, with the field codes for files and URLs left out. Empty when
    /// the line cannot be understood.
    QStringList commandLine() const;
};

/// The names of the running desktop, best first.
QStringList currentDesktops();

} // namespace platform
