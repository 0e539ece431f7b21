#include "platform/linux/x11/StartupNotification.h"

#include <gtest/gtest.h>

using platform::startupCompletedMessage;
using platform::startupTime;

TEST(StartupNotification, TheTimeStandsAtTheEndOfTheId) {
    EXPECT_EQ(startupTime(QStringLiteral("shell/app_TIME1/42-host_TIME123456")), 123456U);
    EXPECT_EQ(startupTime(QStringLiteral("_TIME4294967295")), 4294967295U);
    for (const char* id :
         {"", "shell-42", "a_TIME", "a_TIME0", "a_TIMEx", "a_TIME4294967296", "a_TIME-1"}) {
        EXPECT_EQ(startupTime(QString::fromLatin1(id)), std::nullopt) << id;
    }
}

TEST(StartupNotification, TheIdIsQuoted) {
    EXPECT_EQ(startupCompletedMessage(QStringLiteral("a b\"c\\d_TIME1")),
              "remove: ID=\"a b\\\"c\\\\d_TIME1\"");
}
