#pragma once

#include "platform/appcast/AppcastChoice.h"
#include "platform/appcast/AppcastReader.h"

#include <functional>

namespace platform {

/// Where and for whom newer versions are looked for.
struct AppcastConfiguration {
    /// Empty: this build has no feed.
    QString address;
    Installation installation;
    AppcastAudience audience;
    QString recordPath;
    std::function<QDateTime()> now;
};

/// For this build, this system and this user.
AppcastConfiguration appcastConfiguration(SystemInfo& system);

} // namespace platform
