#include "platform/linux/appcast/AppcastChoice.h"

#include <gtest/gtest.h>

namespace platform {

namespace {

AppcastItem release(const char* version) {
    AppcastItem item;
    item.version.marketing = QLatin1String(version);
    return item;
}

const Installation installation{{QStringLiteral("1.0.2"), QStringLiteral("7")}, {12, 4, 0}};
const QDateTime noon({2026, 11, 23}, {12, 0}, Qt::UTC);

QString chosen(const std::vector<AppcastItem>& items,
               const std::optional<RolloutMoment>& moment = std::nullopt) {
    const AppcastItem* item = newestUpdate(items, installation, moment);
    return item == nullptr ? QString() : item->version.marketing;
}

TEST(AppcastChoice, is_the_newest_newer_release_of_the_general_channel_that_runs_here) {
    AppcastItem beta = release("9.0");
    beta.channel = QStringLiteral("beta");
    AppcastItem tooNew = release("3.0");
    tooNew.minimumSystemVersion = QStringLiteral("12.5");
    AppcastItem tooOld = release("2.0");
    tooOld.maximumSystemVersion = QStringLiteral("12.3");
    AppcastItem fitting = release("1.1");
    fitting.minimumSystemVersion = QStringLiteral("12.4");
    fitting.maximumSystemVersion = QStringLiteral("12.4.0");
    EXPECT_EQ(chosen({beta, tooNew, tooOld, release("1.0.3"), fitting, release("1.0.4")}),
              QStringLiteral("1.1"));
    EXPECT_EQ(chosen({beta, tooNew, tooOld, release("1.0.2"), release("0.9")}), QString());
    EXPECT_EQ(chosen({}), QString());
}

TEST(AppcastChoice, reaches_each_seventh_of_the_users_in_turn_unless_they_ask) {
    AppcastItem phased = release("1.1");
    phased.published = noon;
    phased.phasedRolloutInterval = std::chrono::hours(1);
    const QString version = QStringLiteral("1.1");
    EXPECT_EQ(chosen({phased}, RolloutMoment{noon, 0}), version);
    EXPECT_EQ(chosen({phased}, RolloutMoment{noon.addSecs(2 * 3600 - 1), 2}), QString());
    EXPECT_EQ(chosen({phased}, RolloutMoment{noon.addSecs(2 * 3600), 2}), version);
    EXPECT_EQ(chosen({phased}), version);

    // Who must wait for the newest is told of the one before.
    EXPECT_EQ(chosen({phased, release("1.0.3")}, RolloutMoment{noon, 6}), QStringLiteral("1.0.3"));

    phased.isCritical = true;
    EXPECT_EQ(chosen({phased}, RolloutMoment{noon, 6}), version);
}

TEST(AppcastChoice, knows_for_whom_a_release_is_critical) {
    const auto critical = [](const char* build, const char* below) {
        AppcastItem item = release("1.1");
        item.version.build = QLatin1String(build);
        item.isCritical = true;
        item.criticalBelow = QLatin1String(below);
        return isCritical(item, installation.version);
    };
    EXPECT_TRUE(critical("12", ""));
    EXPECT_TRUE(critical("12", "8"));
    EXPECT_FALSE(critical("12", "7"));
    EXPECT_TRUE(critical("", "1.0.3"));
    EXPECT_FALSE(critical("", "1.0.1"));
    EXPECT_FALSE(isCritical(release("1.1"), installation.version));
}

} // namespace

} // namespace platform
