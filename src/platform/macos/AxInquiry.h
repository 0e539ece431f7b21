#pragma once

#include "platform/macos/CfReference.h"

#include <ApplicationServices/ApplicationServices.h>

#include <chrono>
#include <functional>

namespace platform {

struct AxAnswer {
    AXError error = kAXErrorFailure;
    CfReference<CFTypeRef> value;
};

/// The questions of one poll to another application. They share a deadline: each may take as long
/// as is left of it, and none is asked once it is over.
class AxInquiry {
public:
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;

    AxInquiry(Now now, Clock::duration limit);

    AxAnswer attribute(AXUIElementRef element, CFStringRef name);
    AxAnswer attribute(AXUIElementRef element, CFStringRef name, CFTypeRef parameter);

    /// Whether the deadline cut a question off.
    bool ranOut() const { return ranOut_; }

private:
    /// Gives the next question to `element` its time; false when none is left.
    bool allot(AXUIElementRef element);
    AxAnswer answer(AXError error, CFTypeRef value);
    Clock::duration remaining() const { return deadline_ - now_(); }

    Now now_;
    Clock::time_point deadline_;
    bool ranOut_ = false;
};

} // namespace platform
