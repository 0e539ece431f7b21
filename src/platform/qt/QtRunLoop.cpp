#include "platform/qt/QtRunLoop.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <thread>

namespace platform {

namespace {

std::chrono::milliseconds wholeMilliseconds(Seconds duration) {
    // Qt counts a timer's interval in an int of milliseconds; a longer wait is as good as forever.
    constexpr double longest = std::numeric_limits<int>::max();
    const double milliseconds = std::ceil(duration.count() * 1000.0 - 1e-6);
    if (!(milliseconds > 0)) {
        return std::chrono::milliseconds(0);
    }
    return std::chrono::milliseconds(static_cast<int>(std::min(milliseconds, longest)));
}

} // namespace

namespace {

void waitForBackgroundWork() {
    QThreadPool::globalInstance()->waitForDone();
}

} // namespace

QtRunLoop::QtRunLoop() {
    // The rest of the platform, which background work uses, goes before the run loop does.
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &context_,
                     waitForBackgroundWork);
}

QtRunLoop::~QtRunLoop() {
    waitForBackgroundWork();
}

core::Registration QtRunLoop::scheduleRepeating(Seconds interval, RunLoopMode mode,
                                                std::function<void()> handler) {
    return schedule(interval, true, mode, std::move(handler));
}

core::Registration QtRunLoop::scheduleOnce(Seconds delay, RunLoopMode mode,
                                           std::function<void()> handler) {
    return schedule(delay, false, mode, std::move(handler));
}

core::Registration QtRunLoop::schedule(Seconds interval, bool repeats, RunLoopMode mode,
                                       std::function<void()> handler) {
    struct State {
        std::function<void()> handler;
        core::Registration waitForMenus;
    };
    auto state = std::make_shared<State>(State{std::move(handler), {}});
    auto* timer = new QTimer(&context_);
    timer->setTimerType(Qt::PreciseTimer);
    timer->setSingleShot(!repeats);
    timer->setInterval(wholeMilliseconds(interval));
    QObject::connect(timer, &QTimer::timeout, timer, [this, state, mode] {
        if (mode == RunLoopMode::Default && openMenus_ > 0) {
            // Due while a menu is open: happens once, as soon as the menu is gone.
            state->waitForMenus = trackingEnded_.add([state] {
                state->waitForMenus.reset();
                state->handler();
            });
            return;
        }
        const auto keepAlive = state;
        keepAlive->handler();
    });
    timer->start();
    return core::Registration([guard = QPointer(timer), state] {
        state->waitForMenus.reset();
        if (guard) {
            guard->stop();
            guard->deleteLater();
        }
    });
}

void QtRunLoop::dispatchAfter(Seconds delay, std::function<void()> work) {
    QTimer::singleShot(wholeMilliseconds(delay), Qt::PreciseTimer, &context_, std::move(work));
}

void QtRunLoop::dispatchInBackground(std::function<void()> work, std::function<void()> completion) {
    QThreadPool::globalInstance()->start([context = &context_, work = std::move(work),
                                          completion = std::move(completion)]() mutable {
        work();
        QMetaObject::invokeMethod(context, std::move(completion), Qt::QueuedConnection);
    });
}

void QtRunLoop::sleep(Seconds duration) {
    std::this_thread::sleep_for(duration);
}

void QtRunLoop::beginMenuTracking() {
    ++openMenus_;
}

void QtRunLoop::endMenuTracking() {
    if (openMenus_ > 0 && --openMenus_ == 0) {
        trackingEnded_.notify();
    }
}

} // namespace platform
