#pragma once

#include "core/Observers.h"
#include "platform/RunLoop.h"

#include <map>
#include <memory>
#include <vector>

namespace fakes {

/// A run loop whose time moves only when a test moves it, and then costs nothing. Background work
/// waits until the test runs it.
class VirtualRunLoop final : public platform::RunLoop {
public:
    /// Seconds since the start.
    double now() const { return now_; }

    /// Moves the time on and runs everything that falls due, in order.
    void advance(double seconds);

    /// Runs the background work dispatched so far, then its completions.
    void finishBackgroundWork();

    /// Every blocking sleep, in seconds.
    std::vector<double> sleeps;

    /// What others do while the program sleeps.
    std::function<void()> duringSleep;

    core::Registration scheduleRepeating(platform::Seconds interval, platform::RunLoopMode mode,
                                         std::function<void()> handler) override;
    core::Registration scheduleOnce(platform::Seconds delay, platform::RunLoopMode mode,
                                    std::function<void()> handler) override;
    void dispatchAfter(platform::Seconds delay, std::function<void()> work) override;
    void dispatchInBackground(std::function<void()> work,
                              std::function<void()> completion) override;
    void sleep(platform::Seconds duration) override;
    void beginMenuTracking() override { ++openMenus_; }
    void endMenuTracking() override { --openMenus_; }

private:
    struct Entry {
        std::function<void()> handler;
        double interval = 0; // 0: once
        platform::RunLoopMode mode = platform::RunLoopMode::Common;
    };
    using Queue = std::multimap<double, std::shared_ptr<Entry>>;

    core::Registration add(double delay, Entry entry);

    double now_ = 0;
    int openMenus_ = 0;
    std::shared_ptr<Queue> queue_ = std::make_shared<Queue>();
    std::vector<std::pair<std::function<void()>, std::function<void()>>> background_;
};

} // namespace fakes
