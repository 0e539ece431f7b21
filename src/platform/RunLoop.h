#pragma once

#include "core/Registration.h"

#include <chrono>
#include <functional>

namespace platform {

using Seconds = std::chrono::duration<double>;

/// Default: the timer rests while one of the program's own menus is open. Common: it runs always.
enum class RunLoopMode { Default, Common };

/// The main thread's time. Every member is called on the main thread, and every handler runs
/// there.
class RunLoop {
public:
    virtual ~RunLoop() = default;

    /// Calls `handler` every `interval`, the first time one interval from now.
    virtual core::Registration scheduleRepeating(Seconds interval, RunLoopMode mode,
                                                 std::function<void()> handler) = 0;

    /// Calls `handler` once, `delay` from now.
    virtual core::Registration scheduleOnce(Seconds delay, RunLoopMode mode,
                                            std::function<void()> handler) = 0;

    /// Puts `work` on the main queue, `delay` from now. It cannot be called off.
    virtual void dispatchAfter(Seconds delay, std::function<void()> work) = 0;

    /// Runs `work` on a thread of user-initiated priority and then `completion` on the main one.
    virtual void dispatchInBackground(std::function<void()> work,
                                      std::function<void()> completion) = 0;

    /// Blocks the calling thread.
    virtual void sleep(Seconds duration) = 0;

    /// Told by whoever shows one of the program's own menus; calls nest.
    virtual void beginMenuTracking() = 0;
    virtual void endMenuTracking() = 0;
};

} // namespace platform
