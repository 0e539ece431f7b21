#include "platform/linux/freedesktop/ApplicationIdentity.h"

#include <QByteArray>

namespace platform {

namespace {

bool same(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

const DesktopEntry* byWindowClass(const QString& text, const DesktopEntryTable& table) {
    return text.isEmpty() ? nullptr : table.find([&](const DesktopEntry& entry) {
        return same(entry.startupWindowClass, text);
    });
}

const DesktopEntry* byIdIgnoringCase(const QString& text, const DesktopEntryTable& table) {
    return text.isEmpty()
               ? nullptr
               : table.find([&](const DesktopEntry& entry) { return same(entry.id, text); });
}

const DesktopEntry* byLastPartOfId(const QString& text, const DesktopEntryTable& table) {
    return text.isEmpty() ? nullptr : table.find([&](const DesktopEntry& entry) {
        return entry.id.count(u'.') >= 2 && same(entry.id.section(u'.', -1), text);
    });
}

const DesktopEntry* byProgram(const QString& program, const DesktopEntryTable& table) {
    // The window of a program that runs in a terminal belongs to the terminal.
    return program.isEmpty() ? nullptr : table.find([&](const DesktopEntry& entry) {
        return !entry.terminal && entry.program == program;
    });
}

/// Resolves systemd's escapes: \x2d is a hyphen, and so on.
QString withoutUnitEscapes(const QString& text) {
    QByteArray result;
    const QByteArray bytes = text.toUtf8();
    for (qsizetype index = 0; index < bytes.size(); ++index) {
        if (bytes.mid(index, 2) == "\\x" && index + 3 < bytes.size()) {
            result.append(QByteArray::fromHex(bytes.mid(index + 2, 2)));
            index += 3;
        } else {
            result.append(bytes[index]);
        }
    }
    return QString::fromUtf8(result);
}

} // namespace

QStringList applicationIdsOfUnit(const QString& unit) {
    // app[-<launcher>]-<id>-<random>.scope, or app[-<launcher>]-<id>[@<random>].service
    if (!unit.startsWith(u"app-")) {
        return {};
    }
    QString rest = unit.mid(4);
    if (rest.endsWith(u".scope")) {
        rest = rest.chopped(6);
        rest.truncate(rest.lastIndexOf(u'-'));
    } else if (rest.endsWith(u".service")) {
        rest = rest.chopped(8).section(u'@', 0, 0);
    } else {
        return {};
    }
    QStringList ids{withoutUnitEscapes(rest)};
    if (const auto hyphen = rest.indexOf(u'-'); hyphen >= 0) {
        ids.append(withoutUnitEscapes(rest.mid(hyphen + 1)));
    }
    return ids;
}

const DesktopEntry* findApplication(const ApplicationClues& clues, const DesktopEntryTable& table) {
    const auto* found = table.withId(clues.gtkApplicationId);
    const auto orElse = [&](const DesktopEntry* (*rung)(const QString&, const DesktopEntryTable&),
                            const QString& clue) {
        if (found == nullptr) {
            found = rung(clue, table);
        }
    };
    const auto byId = [](const QString& id, const DesktopEntryTable& all) {
        return all.withId(id);
    };
    orElse(byId, clues.kdeDesktopFile.section(u'/', -1));
    orElse(byId, clues.bamfDesktopFile.section(u'/', -1));
    orElse(byWindowClass, clues.windowClass);
    orElse(byWindowClass, clues.windowInstance);
    orElse(byIdIgnoringCase, clues.windowClass);
    orElse(byLastPartOfId, clues.windowClass);
    for (const auto& program : clues.programs) {
        orElse(byProgram, program);
    }
    for (const auto& id : applicationIdsOfUnit(clues.controlGroup)) {
        orElse(byId, id);
    }
    return found;
}

std::optional<QString> applicationIdentifier(const ApplicationClues& clues,
                                             const DesktopEntry* application) {
    if (application != nullptr) {
        return application->id;
    }
    return clues.windowClass.isEmpty() ? std::nullopt : std::optional(clues.windowClass);
}

} // namespace platform
