#include "platform/linux/freedesktop/XdgAutostartLoginItem.h"

#include "core/ProgramIdentity.h"
#include "platform/linux/freedesktop/KeyFile.h"

#include <QStandardPaths>

#include <utility>

namespace platform {

namespace {

/// One argument of an Exec line. It is escaped twice: as a quoted argument, and that once more as
/// a value of the file.
QString execArgument(const QString& argument) {
    QString escaped;
    for (const QChar character : argument) {
        switch (character.unicode()) {
        case u'"':
        case u'`':
        case u'$':
            escaped += QLatin1String("\\\\");
            escaped += character;
            break;
        case u'\\':
            escaped += QLatin1String("\\\\\\\\");
            break;
        case u'%':
            escaped += QLatin1String("%%");
            break;
        case u'\n':
            escaped += QLatin1String("\\n");
            break;
        case u'\r':
            escaped += QLatin1String("\\r");
            break;
        case u'\t':
            escaped += QLatin1String("\\t");
            break;
        default:
            escaped += character;
        }
    }
    return u'"' + escaped + u'"';
}

/// The command that starts a program from wherever it lies.
QString execLine(const QString& executable) {
    const QString program = execArgument(executable);
    // GLib's launcher looks for the program on the disk before it resolves "%%", and drops an entry
    // whose program it does not find; in arguments it resolves it. Of the commands that only start
    // their argument, this one takes a "=" in it for nothing special and needs no "$", which
    // systemd's reader of these entries does not pass on.
    return executable.contains(u'%') ? QStringLiteral("nice -n 0 ") + program : program;
}

/// Whether the desktop's own settings, or the user, switched the entry off.
bool isSwitchedOff(const QByteArray& contents) {
    const auto file = KeyFile::parse(contents);
    const auto group = QStringLiteral("Desktop Entry");
    return file.boolean(group, QStringLiteral("Hidden")) == true ||
           file.boolean(group, QStringLiteral("X-GNOME-Autostart-enabled")) == false;
}

} // namespace

QString XdgAutostartLoginItem::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/%1.desktop").arg(core::programIdentifier());
}

XdgAutostartLoginItem::XdgAutostartLoginItem(const QString& path, QString executable)
    : entry_(path)
    , executable_(std::move(executable)) {}

LoginItemStatus XdgAutostartLoginItem::status() {
    const WholeFile::Contents contents = entry_.read();
    const auto* entry = std::get_if<QByteArray>(&contents);
    return entry != nullptr && !isSwitchedOff(*entry) ? LoginItemStatus::Enabled
                                                      : LoginItemStatus::NotRegistered;
}

LoginItem::Error XdgAutostartLoginItem::registerItem() {
    const QString entry = QStringLiteral("[Desktop Entry]\n"
                                         "Type=Application\n"
                                         "Name=Corvane Quillet\n"
                                         "Comment=A floating formatting bar for text editing\n"
                                         "Exec=%1\n"
                                         "Icon=%2\n"
                                         "Terminal=false\n"
                                         "X-GNOME-Autostart-enabled=true\n")
                              .arg(execLine(executable_), core::programIdentifier());
    return entry_.replace(entry.toUtf8());
}

LoginItem::Error XdgAutostartLoginItem::unregisterItem() {
    const auto error = entry_.remove();
    return error ? Error(QStringLiteral("%1: %2").arg(entry_.path(), *error)) : std::nullopt;
}

} // namespace platform
