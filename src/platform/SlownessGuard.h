#pragma once

#include <algorithm>
#include <chrono>

namespace platform {

/// Decides for how long an application that ran into the time limit is left alone.
class SlownessGuard {
public:
    using Clock = std::chrono::steady_clock;

    /// The application did not answer in time: left alone for 1 s, then 2 s, up to 5 s.
    void ranOut(Clock::time_point now) {
        pause_ = std::clamp(pause_ * 2, shortestPause, longestPause);
        leftAloneUntil_ = now + pause_;
    }

    bool isLeftAlone(Clock::time_point now) const { return now < leftAloneUntil_; }

private:
    static constexpr Clock::duration shortestPause = std::chrono::seconds(1);
    static constexpr Clock::duration longestPause = std::chrono::seconds(5);

    Clock::duration pause_{0};
    Clock::time_point leftAloneUntil_;
};

} // namespace platform
