#include "platform/linux/freedesktop/RunningProcess.h"

#include <QFile>
#include <QRegularExpression>

namespace platform {

namespace {

QByteArray contents(const QString& path) {
    constexpr qint64 longest = 4096;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(longest) : QByteArray();
}

QString fileName(const QString& path) {
    return path.section(u'/', -1);
}

bool isInterpreter(const QString& program) {
    static const QRegularExpression interpreters(QStringLiteral(
        "^(python|perl|ruby|node|nodejs|gjs|gjs-console|seed|java|mono|tclsh|wish|sh|bash|dash)"
        "[0-9.]*$"));
    return interpreters.match(program).hasMatch();
}

} // namespace

QStringList RunningProcess::programNames(const QString& executable, const QStringList& arguments) {
    QString path = executable;
    // The program was replaced on disk while it was running.
    if (path.endsWith(u" (deleted)")) {
        path.chop(10);
    }
    QStringList names{fileName(path)};
    if (!arguments.isEmpty()) {
        names.append(fileName(arguments.first()));
    }
    names.removeAll(QString());
    names.removeDuplicates();
    for (const auto& name : std::as_const(names)) {
        if (!isInterpreter(name)) {
            continue;
        }
        for (const auto& argument : arguments.mid(1)) {
            if (!argument.startsWith(u'-')) {
                return {fileName(argument)};
            }
        }
        return {};
    }
    return names;
}

RunningProcess RunningProcess::read(ProcessIdentifier process) {
    const QString folder = QStringLiteral("/proc/%1/").arg(process);
    RunningProcess result;
    QStringList arguments;
    for (const auto& argument : contents(folder + QStringLiteral("cmdline")).split('\0')) {
        arguments.append(QString::fromLocal8Bit(argument));
    }
    result.programs = programNames(QFile::symLinkTarget(folder + QStringLiteral("exe")), arguments);
    for (const auto& line : contents(folder + QStringLiteral("cgroup")).split('\n')) {
        // The unified hierarchy, the one that session managers use, has no controllers.
        if (line.startsWith("0::")) {
            result.controlGroup = fileName(QString::fromLocal8Bit(line));
        }
    }
    return result;
}

} // namespace platform
