#include "platform/linux/freedesktop/DesktopEntryTable.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

const QString& suffix() {
    static const QString text = QStringLiteral(".desktop");
    return text;
}

} // namespace

QString desktopFileId(const QString& relativePath) {
    QString id = relativePath;
    if (id.endsWith(suffix())) {
        id.chop(suffix().size());
    }
    return id.replace(u'/', u'-');
}

DesktopEntryTable DesktopEntryTable::read(const QStringList& folders,
                                          const QStringList& languages) {
    std::vector<DesktopEntry> entries;
    for (const auto& folder : folders) {
        QStringList paths;
        QDirIterator files(folder, {QChar(u'*') + suffix()}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            paths.append(files.next());
        }
        paths.sort();
        const QDir root(folder);
        for (const auto& path : std::as_const(paths)) {
            const QString id = desktopFileId(root.relativeFilePath(path));
            if (auto entry = DesktopEntry::read(path, id, languages)) {
                entries.push_back(std::move(*entry));
            }
        }
    }
    return DesktopEntryTable(std::move(entries));
}

DesktopEntryTable::DesktopEntryTable(std::vector<DesktopEntry> entries) {
    QSet<QString> seen;
    for (auto& entry : entries) {
        if (seen.contains(entry.id)) {
            continue;
        }
        seen.insert(entry.id);
        if (entry.isApplication && !entry.hidden) {
            entries_.push_back(std::move(entry));
        }
    }
}

const DesktopEntry*
DesktopEntryTable::find(const std::function<bool(const DesktopEntry&)>& matches) const {
    const DesktopEntry* unlisted = nullptr;
    for (const auto& entry : entries_) {
        if ((entry.noDisplay && unlisted != nullptr) || !matches(entry)) {
            continue;
        }
        if (!entry.noDisplay) {
            return &entry;
        }
        unlisted = &entry;
    }
    return unlisted;
}

const DesktopEntry* DesktopEntryTable::withId(const QString& id) const {
    const QString bare = id.endsWith(suffix()) ? id.chopped(suffix().size()) : id;
    return bare.isEmpty() ? nullptr
                          : find([&](const DesktopEntry& entry) { return entry.id == bare; });
}

} // namespace platform
