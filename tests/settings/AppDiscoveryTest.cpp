#include "settings/AppDiscovery.h"

#include "fakes/FakePlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using platform::ActivationPolicy;
using settings::AppInfo;
using testing::ElementsAre;

namespace {

std::vector<std::string> names(const std::vector<AppInfo>& apps) {
    std::vector<std::string> result;
    for (const auto& app : apps) {
        result.push_back(app.name.toStdString());
    }
    return result;
}

AppInfo app(const QString& name, const QString& identifier = QStringLiteral("id")) {
    return {.name = name, .bundleIdentifier = identifier, .icon = std::nullopt};
}

platform::RunningApplication running(std::optional<QString> identifier, std::optional<QString> name,
                                     ActivationPolicy policy = ActivationPolicy::Regular) {
    platform::RunningApplication application;
    application.bundleIdentifier = std::move(identifier);
    application.localizedName = std::move(name);
    application.activationPolicy = policy;
    return application;
}

} // namespace

TEST(AppDiscovery, TakesOrdinaryRunningApplicationsAndKeepsTwoProcessesOfOne) {
    const auto apps = settings::runningApps({
        running(QStringLiteral("a"), QStringLiteral("First")),
        running(std::nullopt, QStringLiteral("No identifier")),
        running(QStringLiteral("b"), std::nullopt),
        running(QStringLiteral("c"), QStringLiteral("Accessory"), ActivationPolicy::Accessory),
        running(QStringLiteral("a"), QStringLiteral("Second")),
    });
    EXPECT_THAT(names(apps), ElementsAre("First", "Second"));
    EXPECT_EQ(apps[0], apps[1]);
    EXPECT_NE(apps[0].id, apps[1].id);
}

TEST(AppDiscovery, TakesEachInstalledApplicationOnceFromTheFirstPlaceThatHasIt) {
    const QString one = QStringLiteral("/one");
    const QString two = QStringLiteral("/two");
    fakes::FakeApplicationBundles bundles;
    const auto named = [](const QString& identifier, std::optional<QString> name,
                          std::optional<QString> display = std::nullopt) {
        return platform::ApplicationBundle{identifier, std::move(name), std::move(display)};
    };
    bundles.add(one, QStringLiteral("Running.app"),
                named(QStringLiteral("running"), QStringLiteral("Installed name")));
    bundles.add(one, QStringLiteral("Twice.app"),
                named(QStringLiteral("twice"), QStringLiteral("Here")));
    bundles.add(two, QStringLiteral("Twice.app"),
                named(QStringLiteral("twice"), QStringLiteral("There")));
    bundles.add(two, QStringLiteral("Display.app"),
                named(QStringLiteral("display"), std::nullopt, QStringLiteral("Display name")));
    bundles.add(two, QStringLiteral("Nameless.app"),
                named(QStringLiteral("nameless"), std::nullopt));
    bundles.add(two, QStringLiteral("notes.txt"),
                named(QStringLiteral("txt"), QStringLiteral("Text")));
    bundles.add(two, QStringLiteral("Loud.APP"),
                named(QStringLiteral("loud"), QStringLiteral("Loud")));
    bundles.add(two, QStringLiteral("Anonymous.app"), {std::nullopt, QStringLiteral("Anon"), {}});
    bundles.listing[two].append(QStringLiteral("Broken.app"));

    std::vector<AppInfo> apps{app(QStringLiteral("Running name"), QStringLiteral("running"))};
    settings::appendInstalledApps(apps, bundles);
    EXPECT_THAT(names(apps), ElementsAre("Running name", "Here", "Display name"));
    EXPECT_EQ(apps[1].icon->nameOrPath, QStringLiteral("/one/Twice.app"));
}

TEST(AppDiscovery, FiltersByNameOrElseByIdentifier) {
    const std::vector<AppInfo> apps{
        app(QStringLiteral("Calendar"), QStringLiteral("org.x.days")),
        app(QStringLiteral("Notes"), QStringLiteral("org.LOCAL.notes")),
        app(QStringLiteral("Paint brush"), QStringLiteral("org.x.paint")),
    };
    EXPECT_THAT(names(settings::filteredApps(apps, QStringLiteral("cal"))),
                ElementsAre("Calendar", "Notes"));
    EXPECT_THAT(names(settings::filteredApps(apps, QStringLiteral(" "))),
                ElementsAre("Paint brush"));
    EXPECT_EQ(settings::filteredApps(apps, QString()).size(), 3U);
}
