#include "platform/linux/LinuxSystemInfo.h"

#include <gtest/gtest.h>

namespace platform {

TEST(LinuxSystemInfo, AVersionIsThreeNumbersOfTheDistributionElseOfTheKernel) {
    const QString kernel = QStringLiteral("6.1.0-28-amd64");
    const auto of = [&](const char* distribution) {
        return versionNumbers(QString::fromLatin1(distribution), kernel);
    };
    EXPECT_EQ(of("12"), (OperatingSystemVersion{12, 0, 0}));
    EXPECT_EQ(of("24.04"), (OperatingSystemVersion{24, 4, 0}));
    EXPECT_EQ(of("15.6.1.2"), (OperatingSystemVersion{15, 6, 1}));
    EXPECT_EQ(of("40-beta"), (OperatingSystemVersion{40, 0, 0}));
    for (const char* unknown : {"", "unknown", "rolling", "v3"}) {
        EXPECT_EQ(of(unknown), (OperatingSystemVersion{6, 1, 0})) << unknown;
    }
    EXPECT_EQ(versionNumbers({}, {}), OperatingSystemVersion{});
}

} // namespace platform
