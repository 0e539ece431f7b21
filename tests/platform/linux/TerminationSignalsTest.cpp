#include "platform/linux/TerminationSignals.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

TEST(TerminationSignals, TheSecondSignalEndsTheProcessAtOnce) {
    EXPECT_EXIT(
        {
            const platform::TerminationSignals signals;
            std::raise(SIGTERM);
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST(TerminationSignals, AHangUpThatTheStarterIgnoresStaysIgnored) {
    EXPECT_EXIT(
        {
            std::signal(SIGHUP, SIG_IGN);
            const platform::TerminationSignals signals;
            std::raise(SIGHUP);
            std::raise(SIGHUP);
            std::_Exit(7);
        },
        testing::ExitedWithCode(7), "");
}
