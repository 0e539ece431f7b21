#pragma once

#include "settings/AppInfo.h"
#include "settings/AppSettingsManager.h"
#include "ui/Binding.h"
#include "ui/Element.h"

#include <vector>

namespace settings {

/// The content of the settings window. Each time it is shown it looks anew for applications.
struct SettingsView {
    AppSettingsManager& appSettings = AppSettingsManager::shared();
    ui::Binding<std::vector<AppInfo>> installedApps = ui::state(std::vector<AppInfo>{});
    ui::Binding<QString> searchText = ui::state(QString());

    ui::Element body() const;

private:
    void loadInstalledApps() const;
};

} // namespace settings
