#pragma once

#include "platform/linux/freedesktop/DesktopEntry.h"

#include <functional>
#include <vector>

namespace platform {

/// The applications for which desktop entries existed when it was made. Never changes, so any
/// thread may ask it.
class DesktopEntryTable {
public:
    /// Reads the folders, the one that counts most first, with the folders in them. Takes its
    /// time: some milliseconds for a hundred entries.
    static DesktopEntryTable read(const QStringList& folders, const QStringList& languages);

    /// Of several entries with the same id the first counts; one that is hidden, or no
    /// application, takes the others with it.
    explicit DesktopEntryTable(std::vector<DesktopEntry> entries);

    const std::vector<DesktopEntry>& entries() const { return entries_; }

    /// The first entry that the desktop lists and that matches, else the first that matches at
    /// all; null when none does.
    const DesktopEntry* find(const std::function<bool(const DesktopEntry&)>& matches) const;

    /// The entry with exactly that id, with or without the suffix.
    const DesktopEntry* withId(const QString& id) const;

private:
    std::vector<DesktopEntry> entries_;
};

/// The desktop-file id of a file in one of the folders' subfolders: its relative path without the
/// suffix, slashes turned into hyphens.
QString desktopFileId(const QString& relativePath);

} // namespace platform
