#include "settings/views/SettingsView.h"

#include "platform/Platform.h"
#include "settings/AppDiscovery.h"
#include "settings/views/AppsSettingsView.h"
#include "settings/views/BehaviorSettingsView.h"
#include "settings/views/GeneralSettingsView.h"
#include "ui/Modifiers.h"
#include "ui/TabView.h"

namespace settings {

ui::Element SettingsView::body() const {
    return ui::tabView(ui::Tab{QStringLiteral("Behavior"), QStringLiteral("slider.horizontal.3"),
                               BehaviorSettingsView{appSettings}},
                       ui::Tab{QStringLiteral("Apps"), QStringLiteral("app.badge"),
                               AppsSettingsView{appSettings, installedApps, searchText}},
                       ui::Tab{QStringLiteral("General"), QStringLiteral("gear"),
                               GeneralSettingsView{appSettings}}) |
           ui::frame({.width = 500, .height = 450}) |
           ui::onAppear([view = *this] { view.loadInstalledApps(); }) |
           ui::identifier(QStringLiteral("SettingsView"));
}

void SettingsView::loadInstalledApps() const {
    platform::Platform& platform = platform::current();
    const auto found = std::make_shared<std::vector<AppInfo>>();
    platform.runLoop->dispatchInBackground(
        [found, &platform] {
            *found = runningApps(platform.workspace->runningApplications());
            appendInstalledApps(*found, *platform.applicationBundles);
            sortByName(*found);
        },
        // The list is the view's own and lives on when the view is gone.
        [found, installedApps = installedApps] { installedApps->set(std::move(*found)); });
}

} // namespace settings
