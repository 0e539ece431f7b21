#include "platform/appcast/AppcastChoice.h"

#include <QTimeZone>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

AppcastItem release(const char* version) {
    AppcastItem item;
    item.version.marketing = QLatin1String(version);
    return item;
}

const Installation installation{{u"1.0.2"_s, u"7"_s}, {12, 4, 0}};
const QDateTime noon({2026, 11, 23}, {12, 0}, QTimeZone::utc());

QString chosen(const std::vector<AppcastItem>& items,
               const std::optional<RolloutMoment>& moment = std::nullopt) {
    const AppcastItem* item = newestUpdate(items, installation, moment);
    return item == nullptr ? QString() : item->version.marketing;
}

TEST(AppcastChoice, is_the_newest_newer_release_of_the_general_channel_that_runs_here) {
    AppcastItem beta = release("9.0");
    beta.channel = u"beta"_s;
    AppcastItem tooNew = release("3.0");
    tooNew.minimumSystemVersion = u"12.5"_s;
    AppcastItem tooOld = release("2.0");
    tooOld.maximumSystemVersion = u"12.3"_s;
    AppcastItem fitting = release("1.1");
    fitting.minimumSystemVersion = u"12.4"_s;
    fitting.maximumSystemVersion = u"12.4.0"_s;
    EXPECT_EQ(chosen({beta, tooNew, tooOld, release("1.0.3"), fitting, release("1.0.4")}),
              u"1.1"_s);
    EXPECT_EQ(chosen({beta, tooNew, tooOld, release("1.0.2"), release("0.9")}), QString());
    EXPECT_EQ(chosen({}), QString());
}

TEST(AppcastChoice, reaches_each_seventh_of_the_users_in_turn_unless_they_ask) {
    AppcastItem phased = release("1.1");
    phased.published = noon;
    phased.phasedRolloutInterval = std::chrono::hours(1);
    const QString version = u"1.1"_s;
    EXPECT_EQ(chosen({phased}, RolloutMoment{noon, 0}), version);
    EXPECT_EQ(chosen({phased}, RolloutMoment{noon.addSecs(2 * 3600 - 1), 2}), QString());
    EXPECT_EQ(chosen({phased}, RolloutMoment{noon.addSecs(2 * 3600), 2}), version);
    EXPECT_EQ(chosen({phased}), version);

    // Who must wait for the newest is told of the one before.
    EXPECT_EQ(chosen({phased, release("1.0.3")}, RolloutMoment{noon, 6}), u"1.0.3"_s);

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
