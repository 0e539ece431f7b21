#include "platform/linux/freedesktop/XdgAutostartLoginItem.h"

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

/// Whether a desktop entry switches itself off.
bool isSwitchedOff(const QByteArray& entry) {
    bool inMainGroup = false;
    for (const QByteArray& line : entry.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith('[')) {
            inMainGroup = trimmed == "[Desktop Entry]";
            continue;
        }
        const qsizetype sign = trimmed.indexOf('=');
        if (!inMainGroup || sign < 0) {
            continue;
        }
        const QByteArray key = trimmed.left(sign).trimmed();
        const QByteArray value = trimmed.mid(sign + 1).trimmed();
        if ((key == "Hidden" && value == "true") ||
            (key == "X-GNOME-Autostart-enabled" && value == "false")) {
            return true;
        }
    }
    return false;
}

} // namespace

QString XdgAutostartLoginItem::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/autostart/com.corvane.Quillet.desktop");
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
                                         "Icon=com.corvane.Quillet\n"
                                         "Terminal=false\n"
                                         "X-GNOME-Autostart-enabled=true\n")
                              .arg(execArgument(executable_));
    return entry_.replace(entry.toUtf8());
}

LoginItem::Error XdgAutostartLoginItem::unregisterItem() {
    const auto error = entry_.remove();
    return error ? Error(QStringLiteral("%1: %2").arg(entry_.path(), *error)) : std::nullopt;
}

} // namespace platform
