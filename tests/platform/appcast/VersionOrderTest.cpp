#include "platform/appcast/VersionOrder.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

TEST(VersionOrder, each_of_a_row_is_the_same_and_older_than_the_next_row) {
    const std::vector<std::vector<QString>> rows{
        {QString(), u"0"_s, u"0.0"_s, u"-5"_s},
        {u"0.0.1"_s},
        {u"0.1"_s, u"0.1.0"_s},
        {u"0.9"_s},
        {u"1.0 alpha"_s},
        {u"1.0b"_s, u"1b0"_s, u"1.0.0b"_s},
        {u"1.0b1"_s, u"1.0.B.1"_s},
        {u"1.0b2"_s},
        {u"1.0b10"_s},
        {u"1.0 beta"_s},
        {u"1.0rc1"_s},
        {u"1.0"_s, u"1"_s, u"1.0.0"_s, u"01.00"_s, u"1.0-rc2"_s, u"1.0-4"_s},
        {u"1.0.1a"_s},
        {u"1.0.1"_s},
        {u"1.9"_s},
        {u"1.10"_s, u"1.10 (0)"_s},
        {u"1.10 (17)"_s},
        {u"20261123"_s},
        {u"18446744073709551616"_s},
        {u"18446744073709551617"_s},
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

} // namespace

} // namespace platform
