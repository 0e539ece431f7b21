#include "platform/linux/freedesktop/DesktopEntry.h"

#include <algorithm>

namespace platform {

namespace {

const QString& group() {
    static const QString name = QStringLiteral("Desktop Entry");
    return name;
}

/// Splits a command line at blanks, double quotes aside. Empty when a quote stays open.
std::optional<QStringList> words(QStringView line) {
    QStringList result;
    QString word;
    bool inWord = false;
    bool quoted = false;
    for (qsizetype index = 0; index < line.size(); ++index) {
        const QChar character = line[index];
        if (character == u'\\' && index + 1 < line.size()) {
            word.append(line[++index]);
            inWord = true;
        } else if (character == u'"') {
            quoted = !quoted;
            inWord = true;
        } else if (!quoted && (character == u' ' || character == u'\t')) {
            if (inWord) {
                result.append(word);
            }
            word.clear();
            inWord = false;
        } else {
            word.append(character);
            inWord = true;
        }
    }
    if (inWord) {
        result.append(word);
    }
    return quoted ? std::nullopt : std::optional(result);
}

QString programOf(QStringView exec) {
    const QStringList parts = words(exec).value_or(QStringList());
    auto program = parts.begin();
    if (program != parts.end() && program->section(u'/', -1) == u"env") {
        program = std::find_if(std::next(program), parts.end(), [](const QString& part) {
            return !part.contains(u'=') && !part.startsWith(u'-');
        });
    }
    return program == parts.end() ? QString() : program->section(u'/', -1);
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::read(const QString& path, const QString& id,
                                               const QStringList& languages) {
    const auto file = KeyFile::read(path);
    auto entry = file ? from(*file, languages) : std::nullopt;
    if (entry) {
        entry->path = path;
        entry->id = id;
    }
    return entry;
}

std::optional<DesktopEntry> DesktopEntry::from(const KeyFile& file, const QStringList& languages) {
    if (!file.hasGroup(group())) {
        return std::nullopt;
    }
    const auto string = [&file](QStringView key) {
        return file.string(group(), key.toString()).value_or(QString());
    };
    const auto flag = [&file](QStringView key) {
        return file.boolean(group(), key.toString()).value_or(false);
    };
    DesktopEntry entry;
    entry.name =
        file.localizedString(group(), QStringLiteral("Name"), languages).value_or(QString());
    entry.icon =
        file.localizedString(group(), QStringLiteral("Icon"), languages).value_or(QString());
    entry.startupWindowClass = string(u"StartupWMClass");
    entry.exec = string(u"Exec");
    entry.program = programOf(entry.exec);
    entry.tryExec = string(u"TryExec");
    entry.onlyShowIn = file.list(group(), QStringLiteral("OnlyShowIn"));
    entry.notShowIn = file.list(group(), QStringLiteral("NotShowIn"));
    entry.isApplication = string(u"Type") == u"Application";
    entry.noDisplay = flag(u"NoDisplay");
    entry.hidden = flag(u"Hidden");
    entry.terminal = flag(u"Terminal");
    return entry;
}

bool DesktopEntry::isMeantFor(const QStringList& desktops) const {
    for (const auto& desktop : desktops) {
        if (onlyShowIn.contains(desktop)) {
            return true;
        }
        if (notShowIn.contains(desktop)) {
            return false;
        }
    }
    return onlyShowIn.isEmpty();
}

QStringList DesktopEntry::commandLine() const {
    QStringList result;
    const QStringList parts = words(exec).value_or(QStringList());
    for (const auto& part : parts) {
        QString argument;
        bool dropped = false;
        for (qsizetype index = 0; index < part.size(); ++index) {
            if (part[index] != u'%') {
                argument.append(part[index]);
                continue;
            }
            const QChar code = ++index < part.size() ? part[index] : QChar();
            if (code == u'%') {
                argument.append(u'%');
            } else if (code == u'c') {
                argument.append(name);
            } else if (code == u'k') {
                argument.append(path);
            } else {
                dropped = true;
            }
        }
        if (!argument.isEmpty() || !dropped) {
            result.append(argument);
        }
    }
    return result;
}

QStringList currentDesktops() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
}

} // namespace platform
