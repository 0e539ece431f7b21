#include "macos/cocoa/AppKitTest.h"
#include "macos/fakes/cocoa/ServicesFake.h"
#include "platform/macos/AppKitAlerts.h"
#include "platform/macos/BundleSystemInfo.h"
#include "platform/macos/BundledUpdater.h"
#include "platform/macos/ServiceLoginItem.h"

#include <QDir>
#include <QTemporaryDir>

#include <pwd.h>
#include <unistd.h>

using platform::LoginItemStatus;

namespace {

class SystemServicesTest : public AppKitTest {
protected:
    SystemServicesTest() { services = {}; }

    cocoaFake::Services& services = cocoaFake::services();
};

TEST_F(SystemServicesTest, TheLoginItemAnswersTheSystemsStatusAndItsWordsForAnError) {
    platform::ServiceLoginItem item;
    const std::vector<std::pair<long, LoginItemStatus>> statuses{
        {0, LoginItemStatus::NotRegistered},    {1, LoginItemStatus::Enabled},
        {2, LoginItemStatus::RequiresApproval}, {3, LoginItemStatus::NotFound},
        {77, LoginItemStatus::NotFound},
    };
    for (const auto& [number, status] : statuses) {
        services.loginItem.status = number;
        EXPECT_EQ(item.status(), status) << number;
    }
    EXPECT_EQ(item.registerItem(), std::nullopt);
    EXPECT_EQ(item.unregisterItem(), std::nullopt);
    services.loginItem.error = QStringLiteral("Operation not permitted");
    EXPECT_TRUE(item.registerItem()->contains(QStringLiteral("Operation not permitted")));
    EXPECT_TRUE(item.unregisterItem()->contains(QStringLiteral("Operation not permitted")));
    EXPECT_EQ(services.loginItem.calls,
              (std::vector<std::string>{"register", "unregister", "register", "unregister"}));
}

TEST_F(SystemServicesTest, AnAlertShowsItsTextsAndButtonsInFrontAndAnswersTheButton) {
    services.alertAnswer = 1001;
    EXPECT_EQ(
        platform::AppKitAlerts().runModal({platform::AlertStyle::Informational,
                                           QStringLiteral("Granted"),
                                           QStringLiteral("a\n\nb"),
                                           {QStringLiteral("Open"), QStringLiteral("Cancel")}}),
        1001);
    EXPECT_EQ(platform::AppKitAlerts().runModal(
                  {platform::AlertStyle::Warning, QString(), QString(), {QStringLiteral("OK")}}),
              1001);
    ASSERT_EQ(services.alerts.size(), 2U);
    const auto& alert = services.alerts[0];
    EXPECT_EQ(alert.messageText, QStringLiteral("Granted"));
    EXPECT_EQ(alert.informativeText, QStringLiteral("a\n\nb"));
    EXPECT_EQ(alert.style, 1U);
    EXPECT_EQ(alert.buttons, (QStringList{QStringLiteral("Open"), QStringLiteral("Cancel")}));
    EXPECT_TRUE(alert.afterComingForward);
    EXPECT_EQ(services.alerts[1].style, 0U);
}

TEST_F(SystemServicesTest, TheUpdaterIsMadeOutOfTheBundleWithNothingStarted) {
    const QTemporaryDir bundle;
    ASSERT_TRUE(QDir(bundle.path()).mkdir(QStringLiteral("Sparkle.framework")));
    services.frameworks = bundle.path();
    {
        platform::BundledUpdater updater;
        endTurn();
        EXPECT_EQ(services.updater, (std::vector<std::string>{"load Sparkle.framework", "made"}));
        updater.startUpdater();
        updater.checkForUpdates();
    }
    EXPECT_EQ(services.updater,
              (std::vector<std::string>{"load Sparkle.framework", "made", "start", "check"}));
}

TEST_F(SystemServicesTest, AnUpdaterThatTheBundleDoesNotBringIsQuietlyAbsent) {
    const QTemporaryDir bundle;
    const auto useOne = [&] {
        services.updater.clear();
        platform::BundledUpdater updater;
        updater.startUpdater();
        updater.checkForUpdates();
        return services.updater;
    };
    EXPECT_TRUE(useOne().empty());
    services.frameworks = bundle.path();
    EXPECT_TRUE(useOne().empty());
    const QTemporaryDir other;
    ASSERT_TRUE(QDir(other.path()).mkdir(QStringLiteral("Sparkle.framework")));
    services.frameworks = other.path();
    services.frameworkLoads = false;
    EXPECT_EQ(useOne(), std::vector<std::string>{"load Sparkle.framework"});
}

TEST_F(SystemServicesTest, TellsOfTheSystemAndTheUserAndOfABundleOnlyWhatItSays) {
    platform::BundleSystemInfo info;
    EXPECT_EQ(info.operatingSystemVersion(), (platform::OperatingSystemVersion{14, 6, 1}));
    EXPECT_EQ(info.userName(), QString::fromLocal8Bit(::getpwuid(::getuid())->pw_name));
    EXPECT_EQ(info.marketingVersion(), std::nullopt);
    EXPECT_EQ(info.buildNumber(), std::nullopt);
}

} // namespace
