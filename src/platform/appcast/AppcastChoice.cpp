#include "platform/appcast/AppcastChoice.h"

namespace platform {

namespace {

bool runsOn(const AppcastItem& item, const OperatingSystemVersion& system) {
    const QString version = QStringLiteral("%1.%2.%3")
                                .arg(system.majorVersion)
                                .arg(system.minorVersion)
                                .arg(system.patchVersion);
    const auto& minimum = item.minimumSystemVersion;
    const auto& maximum = item.maximumSystemVersion;
    return (minimum.isEmpty() || compareVersions(version, minimum) >= 0) &&
           (maximum.isEmpty() || compareVersions(version, maximum) <= 0);
}

bool hasReached(const AppcastItem& item, const RolloutMoment& moment) {
    if (!item.phasedRolloutInterval || !item.published.isValid()) {
        return true;
    }
    const auto start = moment.group * item.phasedRolloutInterval->count();
    return moment.now >= item.published.addSecs(start);
}

} // namespace

bool isCritical(const AppcastItem& item, const ProgramVersion& installed) {
    if (!item.isCritical || item.criticalBelow.isEmpty()) {
        return item.isCritical;
    }
    // The feed counts builds, unless its versions have no other name.
    const QString& mine = item.version.build.isEmpty() ? installed.marketing : installed.build;
    return compareVersions(mine, item.criticalBelow) < 0;
}

const AppcastItem* newestUpdate(const std::vector<AppcastItem>& items,
                                const Installation& installation,
                                const std::optional<RolloutMoment>& moment) {
    const AppcastItem* newest = nullptr;
    for (const AppcastItem& item : items) {
        const bool isOffered =
            item.channel.isEmpty() && runsOn(item, installation.system) &&
            (!moment || isCritical(item, installation.version) || hasReached(item, *moment));
        const auto& known = newest == nullptr ? installation.version : newest->version;
        if (isOffered && compareVersions(item.version, known) > 0) {
            newest = &item;
        }
    }
    return newest;
}

} // namespace platform
