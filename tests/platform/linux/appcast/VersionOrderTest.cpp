#include "platform/linux/appcast/VersionOrder.h"

#include <gtest/gtest.h>

#include <vector>

namespace platform {

namespace {

TEST(VersionOrder, each_of_a_row_is_the_same_and_older_than_the_next_row) {
    const std::vector<std::vector<QString>> rows{
        {QString(), QStringLiteral("0"), QStringLiteral("0.0"), QStringLiteral("-5")},
        {QStringLiteral("0.0.1")},
        {QStringLiteral("0.1"), QStringLiteral("0.1.0")},
        {QStringLiteral("0.9")},
        {QStringLiteral("1.0 alpha")},
        {QStringLiteral("1.0b"), QStringLiteral("1b0"), QStringLiteral("1.0.0b")},
        {QStringLiteral("1.0b1"), QStringLiteral("1.0.B.1")},
        {QStringLiteral("1.0b2")},
        {QStringLiteral("1.0b10")},
        {QStringLiteral("1.0 beta")},
        {QStringLiteral("1.0rc1")},
        {QStringLiteral("1.0"), QStringLiteral("1"), QStringLiteral("1.0.0"),
         QStringLiteral("01.00"), QStringLiteral("1.0-rc2"), QStringLiteral("1.0-4")},
        {QStringLiteral("1.0.1a")},
        {QStringLiteral("1.0.1")},
        {QStringLiteral("1.9")},
        {QStringLiteral("1.10"), QStringLiteral("1.10 (0)")},
        {QStringLiteral("1.10 (17)")},
        {QStringLiteral("20261123")},
        {QStringLiteral("18446744073709551616")},
        {QStringLiteral("18446744073709551617")},
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (std::size_t j = 0; j < rows.size(); ++j) {
            for (const QString& left : rows[i]) {
                for (const QString& right : rows[j]) {
                    EXPECT_EQ(compareVersions(left, right), i <=> j)
                        << left.toStdString() << " and " << right.toStdString();
                }
            }
        }
    }
}

TEST(VersionOrder, builds_only_tell_the_same_version_apart) {
    const ProgramVersion installed{QStringLiteral("1.0.2"), QStringLiteral("7")};
    const auto compared = [&](const char* marketing, const char* build) {
        return compareVersions({QLatin1String(marketing), QLatin1String(build)}, installed);
    };
    EXPECT_EQ(compared("1.0.2", "8"), std::weak_ordering::greater);
    EXPECT_EQ(compared("1.0.2", ""), std::weak_ordering::equivalent);
    EXPECT_EQ(compared("1.0.2", "6"), std::weak_ordering::less);
    EXPECT_EQ(compared("1.0.3", "1"), std::weak_ordering::greater);
    EXPECT_EQ(compared("1.0.1", "9"), std::weak_ordering::less);
}

} // namespace

} // namespace platform
