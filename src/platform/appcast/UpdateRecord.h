#pragma once

#include "platform/appcast/VersionOrder.h"
#include "platform/qt/WholeFile.h"

#include <QDateTime>

#include <optional>

namespace platform {

/// What the update check remembers from one start to the next, in a small file of its own. Not a
/// setting: losing it costs nothing but one more look.
class UpdateRecord {
public:
    static QString defaultPath();

    /// Reads the file; whatever in it is not as written here counts as missing.
    explicit UpdateRecord(const QString& path);

    /// When a feed was last read; empty before the first time.
    const std::optional<QDateTime>& lastCheck() const { return lastCheck_; }
    /// Which group of users this one belongs to, drawn once by lot.
    int rolloutGroup() const { return rolloutGroup_; }
    /// The version that the user does not want to be told of.
    const std::optional<ProgramVersion>& skipped() const { return skipped_; }

    void setLastCheck(const QDateTime& moment);
    void skip(const ProgramVersion& version);

private:
    void load(const QByteArray& contents);
    void save();

    WholeFile file_;
    std::optional<QDateTime> lastCheck_;
    int rolloutGroup_ = 0;
    std::optional<ProgramVersion> skipped_;
};

} // namespace platform
