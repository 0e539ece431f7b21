#include "settings/AppDiscovery.h"

#include "core/LocalizedSearch.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace settings {

std::vector<AppInfo> runningApps(const std::vector<platform::RunningApplication>& running) {
    std::vector<AppInfo> apps;
    for (const auto& application : running) {
        const bool ordinary = application.activationPolicy == platform::ActivationPolicy::Regular;
        if (ordinary && application.bundleIdentifier && application.localizedName) {
            apps.push_back({.name = *application.localizedName,
                            .bundleIdentifier = *application.bundleIdentifier,
                            .icon = application.icon});
        }
    }
    return apps;
}

void appendInstalledApps(std::vector<AppInfo>& apps, platform::ApplicationBundles& bundles) {
    QSet<QString> known;
    for (const auto& app : apps) {
        known.insert(app.bundleIdentifier);
    }
    const QString suffix = bundles.suffix();
    const QStringList folders = bundles.folders();
    for (const auto& folder : folders) {
        const QStringList entries = bundles.entries(folder);
        for (const auto& entry : entries) {
            if (!entry.endsWith(suffix)) {
                continue;
            }
            const QString path = folder + QLatin1Char('/') + entry;
            const auto bundle = bundles.bundle(path);
            if (!bundle || !bundle->bundleIdentifier || known.contains(*bundle->bundleIdentifier)) {
                continue;
            }
            const auto& name = bundle->name ? bundle->name : bundle->displayName;
            if (!name) {
                continue;
            }
            known.insert(*bundle->bundleIdentifier);
            apps.push_back({.name = *name,
                            .bundleIdentifier = *bundle->bundleIdentifier,
                            .icon = bundles.iconForFile(path)});
        }
    }
}

void sortByName(std::vector<AppInfo>& apps) {
    std::vector<std::pair<QList<uint>, std::size_t>> keys;
    keys.reserve(apps.size());
    for (std::size_t index = 0; index < apps.size(); ++index) {
        // Code points, since UTF-16 units order what lies beyond the first plane wrongly.
        const QString key = apps[index].name.toLower().normalized(QString::NormalizationForm_C);
        keys.emplace_back(key.toUcs4(), index);
    }
    std::stable_sort(keys.begin(), keys.end(), [](const auto& left, const auto& right) {
        return std::lexicographical_compare(left.first.begin(), left.first.end(),
                                            right.first.begin(), right.first.end());
    });
    std::vector<AppInfo> sorted;
    sorted.reserve(apps.size());
    for (const auto& key : keys) {
        sorted.push_back(std::move(apps[key.second]));
    }
    apps = std::move(sorted);
}

std::vector<AppInfo> filteredApps(const std::vector<AppInfo>& apps, const QString& searchText) {
    if (searchText.isEmpty()) {
        return apps;
    }
    const core::LocalizedSearch search(searchText);
    std::vector<AppInfo> matching;
    std::copy_if(apps.begin(), apps.end(), std::back_inserter(matching), [&](const AppInfo& app) {
        return search.isIn(app.name) || search.isIn(app.bundleIdentifier);
    });
    return matching;
}

} // namespace settings
