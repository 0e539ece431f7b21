#pragma once

#include "core/Observers.h"
#include "platform/RunLoop.h"

#include <QObject>

namespace platform {

/// The main thread's time on Qt's event loop.
class QtRunLoop final : public RunLoop {
public:
    QtRunLoop();
    ~QtRunLoop() override;

    core::Registration scheduleRepeating(Seconds interval, RunLoopMode mode,
                                         std::function<void()> handler) override;
    core::Registration scheduleOnce(Seconds delay, RunLoopMode mode,
                                    std::function<void()> handler) override;
    void dispatchAfter(Seconds delay, std::function<void()> work) override;
    void dispatchInBackground(std::function<void()> work,
                              std::function<void()> completion) override;
    void sleep(Seconds duration) override;
    void beginMenuTracking() override;
    void endMenuTracking() override;

private:
    core::Registration schedule(Seconds interval, bool repeats, RunLoopMode mode,
                                std::function<void()> handler);

    /// Owns the timers and receives the results of background work: what is still under way when
    /// the run loop goes is dropped.
    QObject context_;
    core::Observers<> trackingEnded_;
    int openMenus_ = 0;
};

} // namespace platform
