#include "platform/macos/AxInquiry.h"

#include <utility>

namespace platform {

namespace {

/// What is left of the deadline is over: nobody answers in less, and a limit of zero would mean the
/// system's own, which is seconds.
constexpr auto shortestQuestion = std::chrono::milliseconds(5);

} // namespace

AxInquiry::AxInquiry(Now now, Clock::duration limit)
    : now_(std::move(now))
    , deadline_(now_() + limit) {}

AxAnswer AxInquiry::attribute(AXUIElementRef element, CFStringRef name) {
    if (!allot(element)) {
        return {kAXErrorCannotComplete, {}};
    }
    CFTypeRef value = nullptr;
    const AXError error = AXUIElementCopyAttributeValue(element, name, &value);
    return answer(error, value);
}

AxAnswer AxInquiry::attribute(AXUIElementRef element, CFStringRef name, CFTypeRef parameter) {
    if (!allot(element)) {
        return {kAXErrorCannotComplete, {}};
    }
    CFTypeRef value = nullptr;
    const AXError error =
        AXUIElementCopyParameterizedAttributeValue(element, name, parameter, &value);
    return answer(error, value);
}

bool AxInquiry::allot(AXUIElementRef element) {
    const auto left = remaining();
    if (left < shortestQuestion) {
        ranOut_ = true;
        return false;
    }
    // Without the limit the question could block for seconds: better not to ask.
    return AXUIElementSetMessagingTimeout(element, std::chrono::duration<float>(left).count()) ==
           kAXErrorSuccess;
}

AxAnswer AxInquiry::answer(AXError error, CFTypeRef value) {
    if (error != kAXErrorSuccess) {
        // The same error is an application that has gone and one that is too slow.
        ranOut_ = ranOut_ || (error == kAXErrorCannotComplete && remaining() < shortestQuestion);
        return {error, {}};
    }
    return {error, CfReference<CFTypeRef>(value)};
}

} // namespace platform
