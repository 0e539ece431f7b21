#pragma once

#include "settings/AppInfo.h"

#include "platform/ApplicationBundles.h"
#include "platform/RunningApplication.h"

#include <vector>

namespace settings {

/// The ordinary ones among the running applications, in their order. Two processes of the same
/// application are two records.
std::vector<AppInfo> runningApps(const std::vector<platform::RunningApplication>& running);

/// Appends the applications installed in the bundles' folders, each bundle identifier only once
/// and not when `apps` has it already. Any thread.
void appendInstalledApps(std::vector<AppInfo>& apps, platform::ApplicationBundles& bundles);

/// By lower-case name in the order of code points, not of any language; equal names keep their
/// order.
void sortByName(std::vector<AppInfo>& apps);

/// Those whose name or else bundle identifier contains `searchText`, ignoring case by the rules of
/// the user's language; all of them for an empty text.
std::vector<AppInfo> filteredApps(const std::vector<AppInfo>& apps, const QString& searchText);

} // namespace settings
