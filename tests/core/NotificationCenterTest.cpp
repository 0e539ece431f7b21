#include "core/NotificationCenter.h"

#include <gtest/gtest.h>

TEST(NotificationCenter, DeliversByNameForAsLongAsTheObserverIsRegistered) {
    core::NotificationCenter center;
    int shown = 0;
    int other = 0;
    core::Registration observer = center.addObserver(QStringLiteral("show"), [&shown] { ++shown; });
    const auto otherObserver = center.addObserver(QStringLiteral("other"), [&other] { ++other; });
    center.post(QStringLiteral("show"));
    center.post(QStringLiteral("nobody listens"));
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(other, 0);
    observer.reset();
    center.post(QStringLiteral("show"));
    EXPECT_EQ(shown, 1);
}
