#include "fakes/VirtualRunLoop.h"
#include "platform/qt/QtRunLoop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

#include <atomic>
#include <string>

using platform::RunLoopMode;
using platform::Seconds;

namespace {

/// The virtual clock and the real one, seen alike.
struct VirtualTime {
    fakes::VirtualRunLoop loop;
    void pass(double seconds) {
        loop.advance(seconds);
        loop.finishBackgroundWork();
    }
};

struct RealTime {
    platform::QtRunLoop loop;
    void pass(double seconds) {
        QElapsedTimer timer;
        timer.start();
        while (static_cast<double>(timer.elapsed()) < seconds * 1000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            QThread::usleep(200);
        }
    }
};

} // namespace

template <typename Time>
class RunLoopContract : public testing::Test {
protected:
    Time time;
    std::string calls;
    std::function<void()> note(char letter) {
        return [this, letter] { calls.push_back(letter); };
    }
};

using Times = testing::Types<VirtualTime, RealTime>;
TYPED_TEST_SUITE(RunLoopContract, Times);

TYPED_TEST(RunLoopContract, RunsInTheOrderOfTheMoments) {
    auto& loop = this->time.loop;
    loop.dispatchAfter(Seconds(0.06), this->note('c'));
    const auto once = loop.scheduleOnce(Seconds(0.02), RunLoopMode::Common, this->note('a'));
    const auto repeating =
        loop.scheduleRepeating(Seconds(0.04), RunLoopMode::Common, this->note('b'));
    EXPECT_EQ(this->calls, "");
    this->time.pass(0.1);
    EXPECT_EQ(this->calls.substr(0, 4), "abcb");
}

TYPED_TEST(RunLoopContract, AnEndedRegistrationNeverFires) {
    auto& loop = this->time.loop;
    auto once = loop.scheduleOnce(Seconds(0.01), RunLoopMode::Common, this->note('a'));
    auto repeating = loop.scheduleRepeating(Seconds(0.01), RunLoopMode::Common, this->note('b'));
    once.reset();
    repeating.reset();
    this->time.pass(0.05);
    EXPECT_EQ(this->calls, "");
}

TYPED_TEST(RunLoopContract, ATimerMayEndItselfWhileItFires) {
    auto& loop = this->time.loop;
    core::Registration timer;
    timer = loop.scheduleRepeating(Seconds(0.01), RunLoopMode::Common, [&] {
        this->calls.push_back('a');
        timer.reset();
    });
    this->time.pass(0.05);
    EXPECT_EQ(this->calls, "a");
}

TYPED_TEST(RunLoopContract, OnlyTimersOfTheDefaultModeRestWhileAMenuIsOpen) {
    auto& loop = this->time.loop;
    const auto poll = loop.scheduleRepeating(Seconds(0.01), RunLoopMode::Default, this->note('p'));
    loop.dispatchAfter(Seconds(0.02), this->note('q'));
    loop.beginMenuTracking();
    this->time.pass(0.05);
    EXPECT_EQ(this->calls, "q");
    loop.endMenuTracking();
    this->time.pass(0.05);
    EXPECT_GE(this->calls.size(), 3U);
}

TEST(QtRunLoop, LetsBackgroundWorkEndBeforeTheProgramHasQuit) {
    platform::QtRunLoop loop;
    std::atomic_bool ended = false;
    std::atomic_bool begun = false;
    loop.dispatchInBackground(
        [&] {
            begun = true;
            QThread::msleep(100);
            ended = true;
        },
        [] {});
    while (!begun) {
        QThread::yieldCurrentThread();
    }
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_TRUE(ended);
}
