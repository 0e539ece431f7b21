#pragma once

#include "platform/appcast/VersionOrder.h"

#include <QDateTime>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>

namespace platform {

enum class NotesFormat { Html, PlainText };

/// One release of a feed. Texts are as the feed has them, cut to a length that fits their purpose.
struct AppcastItem {
    ProgramVersion version;
    /// Empty: offered to everybody.
    QString channel;
    /// Empty: no limit.
    QString minimumSystemVersion;
    QString maximumSystemVersion;
    /// Invalid when the feed gives none that can be read.
    QDateTime published;
    /// How long after the one before the next seventh of all users is told.
    std::optional<std::chrono::seconds> phasedRolloutInterval;
    bool isCritical = false;
    /// The release is critical for builds older than this alone; empty: for all.
    QString criticalBelow;
    /// Pages for the user's browser, of http or https; empty when the feed gives none.
    QUrl page;
    QUrl releaseNotesPage;
    QString notes;
    NotesFormat notesFormat = NotesFormat::Html;
};

} // namespace platform
