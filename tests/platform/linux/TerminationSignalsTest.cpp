#include "platform/linux/TerminationSignals.h"

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

TEST(TerminationSignals, EndTheEventLoopLikeQuit) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const platform::TerminationSignals signals;
        bool toldToQuit = false;
        QObject context;
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, &context,
                         [&] { toldToQuit = true; });
        QTimer::singleShot(0, qApp, [signal] { std::raise(signal); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_TRUE(toldToQuit);
    }
}

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
