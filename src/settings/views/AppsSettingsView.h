#pragma once

#include "settings/AppInfo.h"
#include "settings/AppSettingsManager.h"
#include "ui/Binding.h"
#include "ui/Element.h"

#include <vector>

namespace settings {

/// Whether the bar appears in all applications, and in which ones otherwise.
struct AppsSettingsView {
    AppSettingsManager& appSettings;
    ui::Binding<std::vector<AppInfo>> installedApps;
    ui::Binding<QString> searchText;

    ui::Element body() const;

private:
    ui::Element row(const AppInfo& app) const;
};

} // namespace settings
