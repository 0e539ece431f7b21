#include "feedback/FeedbackService.h"

#include "fakes/FakePlatform.h"
#include "settings/AppSettingsManager.h"

#include <gtest/gtest.h>

namespace feedback {

TEST(FeedbackDefaults, FeedbackGoesToTheBuildsOwnServerWithinAMinute) {
    EXPECT_EQ(FeedbackService().endpoint(), QStringLiteral(EXPECTED_ENDPOINT));
    EXPECT_EQ(FeedbackConnection().timeout, std::chrono::minutes(1));
    EXPECT_EQ(&FeedbackConnection().session(), &sharedSession());
}

TEST(FeedbackService, ReportsOnTheSharedSettingsAndTheCurrentSystem) {
    fakes::FakePlatform fake;
    fake.userDefaults.values.insert_or_assign(QStringLiteral("useAllApps"), false);
    fake.accessibility.trusted = false;
    fake.systemInfo.build = std::nullopt;
    EXPECT_EQ(FeedbackService::appVersion(), u"1.0.2 (0)");
    fake.systemInfo.version = std::nullopt;
    EXPECT_EQ(FeedbackService::appVersion(), u"0 (0)");
    EXPECT_EQ(FeedbackService::osVersion(), u"macOS 14.5.0");
    const QString report = FeedbackService().sammeleDiagnose();
    EXPECT_TRUE(
        report.contains(u"\nApp: 0 (0)\nOS: macOS 14.5.0\n\nAccessibility erteilt: NEIN\n"));
    EXPECT_TRUE(report.contains(u"\n  Erlaubte Apps: 1\n")) << report.toStdString();
    EXPECT_EQ(fake.accessibility.trustQuestions, std::vector{platform::TrustPrompt::Hidden});
}

} // namespace feedback
