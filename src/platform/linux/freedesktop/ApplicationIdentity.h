#pragma once

#include "platform/linux/freedesktop/DesktopEntryTable.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace platform {

/// What a window and its process say about the application to which they belong.
struct ApplicationClues {
    QString gtkApplicationId = {};
    QString kdeDesktopFile = {};
    QString bamfDesktopFile = {};
    QString windowClass = {};
    QString windowInstance = {};
    /// File names of the program that the process runs.
    QStringList programs = {};
    /// The control group in which the session manager started the process.
    QString controlGroup = {};
};

/// The application for which these clues speak: the first clue counts that names an application
/// of the table, in the order of their reliability. Null when none does.
const DesktopEntry* findApplication(const ApplicationClues& clues, const DesktopEntryTable& table);

/// The desktop-file id, else the window class. Empty when both are unknown.
std::optional<QString> applicationIdentifier(const ApplicationClues& clues,
                                             const DesktopEntry* application);

/// The ids that the name of a session manager's unit may stand for, such as
/// "app-gnome-org.gnome.gedit-4711.scope"; none when it is not an application's unit.
QStringList applicationIdsOfUnit(const QString& unit);

} // namespace platform
