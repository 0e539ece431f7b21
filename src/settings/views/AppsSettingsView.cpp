#include "settings/views/AppsSettingsView.h"

#include "settings/AppDiscovery.h"
#include "settings/views/AppRow.h"
#include "ui/Conditional.h"
#include "ui/Label.h"
#include "ui/List.h"
#include "ui/Stack.h"
#include "ui/TextField.h"
#include "ui/Toggle.h"

namespace settings {

namespace {

using Apps = std::vector<AppInfo>;
using ui::Color;
using ui::TextStyle;

constexpr int spacing = 16;
constexpr ui::Padding atTheSides{.horizontal = 16};

void toggleApp(AppSettingsManager& settings, const QString& bundleIdentifier) {
    if (settings.allowedApps.get().contains(bundleIdentifier)) {
        settings.removeApp(bundleIdentifier);
    } else {
        settings.addApp(bundleIdentifier);
    }
}

/// Follows the applications and the search text.
ui::Binding<Apps> shownApps(QWidget& keeper, const ui::Binding<Apps>& installedApps,
                            const ui::Binding<QString>& searchText) {
    auto shown = ui::state(filteredApps(installedApps->get(), searchText->get()));
    ui::keep(keeper,
             std::tuple(installedApps, searchText, installedApps->observe([=](const Apps& apps) {
                 shown->set(filteredApps(apps, searchText->get()));
             }),
                        searchText->observe([=](const QString& text) {
                            shown->set(filteredApps(installedApps->get(), text));
                        })));
    return shown;
}

} // namespace

ui::Element AppsSettingsView::row(const AppInfo& app) const {
    const QString identifier = app.bundleIdentifier;
    auto& allowedApps = appSettings.allowedApps;
    const auto isSelected = ui::state(allowedApps.get().contains(identifier));
    ui::Element element = AppRow{app, isSelected, [&settings = appSettings, identifier] {
                                     toggleApp(settings, identifier);
                                 }};
    ui::keep(element.widget(), allowedApps.observe([=](const QStringList& next) {
        isSelected->set(next.contains(identifier));
    }));
    return element;
}

ui::Element AppsSettingsView::body() const {
    const auto useAllApps = ui::binding(appSettings.useAllApps);
    const auto caption = ui::textOptions(TextStyle::Caption, Color::SecondaryLabel);
    auto& settings = appSettings;

    ui::Element search = ui::textField(QStringLiteral("Search apps..."), searchText);
    const auto shown = shownApps(search.widget(), installedApps, searchText);
    const auto countText = [](const QStringList& allowed) {
        return QStringLiteral("%1 app(s) selected").arg(allowed.size());
    };

    return ui::vstack(
               {.spacing = spacing, .alignment = ui::Alignment::Leading},
               ui::toggle(QStringLiteral("Enable for all applications"), useAllApps) |
                   ui::padding(atTheSides),
               ui::text(QStringLiteral("Select which apps should show the formatting bar:"),
                        caption) |
                   ui::padding(atTheSides) | ui::shownUnless(useAllApps),
               std::move(search) | ui::padding(atTheSides) | ui::shownUnless(useAllApps),
               ui::list<AppInfo>(
                   shown, {.accessibilityLabel = QStringLiteral("Applications"),
                           .row = [view = *this](const AppInfo& app) { return view.row(app); },
                           .name = [](const AppInfo& app) { return app.name; },
                           .activate =
                               [&settings](const AppInfo& app) {
                                   toggleApp(settings, app.bundleIdentifier);
                               }}) |
                   ui::shownUnless(useAllApps) | ui::identifier(QStringLiteral("apps")),
               ui::hstack({},
                          ui::text(ui::binding(settings.allowedApps),
                                   std::function<QString(const QStringList&)>(countText), caption),
                          ui::spacer()) |
                   ui::padding(atTheSides) | ui::shownUnless(useAllApps),
               ui::spacer()) |
           ui::padding({.vertical = spacing});
}

} // namespace settings
