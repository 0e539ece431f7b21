#pragma once

#include "platform/SystemInfo.h"
#include "platform/appcast/AppcastItem.h"

#include <vector>

namespace platform {

/// What decides which release of a feed is for this user.
struct Installation {
    ProgramVersion version;
    OperatingSystemVersion system;
};

/// How far a release that reaches its users group by group must have come.
struct RolloutMoment {
    QDateTime now;
    /// Which of the seven groups this user belongs to, from 0.
    int group = 0;
};

constexpr int rolloutGroups = 7;

/// The newest release of the general channel that is newer than the installed version and runs on
/// this system; null when there is none. Without a moment groups do not matter: who asks is told.
const AppcastItem* newestUpdate(const std::vector<AppcastItem>& items,
                                const Installation& installation,
                                const std::optional<RolloutMoment>& moment);

/// Whether a release is critical for who has `installed`.
bool isCritical(const AppcastItem& item, const ProgramVersion& installed);

} // namespace platform
