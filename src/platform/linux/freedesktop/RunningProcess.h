#pragma once

#include "platform/RunningApplication.h"

#include <QString>
#include <QStringList>

namespace platform {

/// What the system knows of a running process. What cannot be read, because the process is gone or
/// belongs to somebody else, is empty.
struct RunningProcess {
    /// File names of the program: the executable, then the name under which it was started. For an
    /// interpreter the script that it runs stands in for both.
    QStringList programs;
    /// The last part of its control group's path.
    QString controlGroup;

    static RunningProcess read(ProcessIdentifier process);

    /// From the executable's path and the arguments, the name of the program first.
    static QStringList programNames(const QString& executable, const QStringList& arguments);
};

} // namespace platform
