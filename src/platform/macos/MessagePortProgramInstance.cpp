#include "platform/macos/MessagePortProgramInstance.h"

#include "core/Log.h"
#include "core/ProgramIdentity.h"

#include <optional>
#include <utility>

namespace platform {

namespace {

/// Each for sending a message and for waiting until the other side has taken it.
constexpr CFTimeInterval answerLimit = 2.5;
/// The owner of the port may end, and others may start, while this process claims it.
constexpr int mostAttempts = 5;

CfReference<CFStringRef> portName() {
    return toCFString(core::programIdentifier() + QStringLiteral(".instance"));
}

/// The numbers are a protocol between builds of the program.
SInt32 messageOf(InstanceRequest::Kind kind) {
    switch (kind) {
    case InstanceRequest::Kind::Activate:
        return 0;
    case InstanceRequest::Kind::Settings:
        return 1;
    case InstanceRequest::Kind::Feedback:
        return 2;
    case InstanceRequest::Kind::Quit:
        return 3;
    }
    return 0;
}

/// A message that this build does not know still means that the program was started again.
InstanceRequest::Kind kindOf(SInt32 message) {
    using enum InstanceRequest::Kind;
    for (const auto kind : {Settings, Feedback, Quit}) {
        if (message == messageOf(kind)) {
            return kind;
        }
    }
    return Activate;
}

CFDataRef receive(CFMessagePortRef, SInt32 message, CFDataRef, void* requests) {
    static_cast<InstanceRequestQueue*>(requests)->accept({kindOf(message), {}});
    return nullptr;
}

/// Empty when the owner of the port has gone, or nobody has it.
std::optional<ProgramInstance::Claim> tellOwner(InstanceRequest::Kind asked) {
    const CfReference<CFMessagePortRef> owner(
        CFMessagePortCreateRemote(kCFAllocatorDefault, portName().get()));
    if (!owner) {
        return std::nullopt;
    }
    CFDataRef data = nullptr;
    const SInt32 result =
        CFMessagePortSendRequest(owner.get(), messageOf(asked), nullptr, answerLimit, answerLimit,
                                 kCFRunLoopDefaultMode, &data);
    const CfReference<CFDataRef> answer(data);
    switch (result) {
    case kCFMessagePortSuccess:
        return ProgramInstance::Claim::HandedOver;
    case kCFMessagePortSendTimeout:
    case kCFMessagePortReceiveTimeout:
        core::log(u"the program runs already, but does not answer");
        return ProgramInstance::Claim::Unanswered;
    default:
        return std::nullopt;
    }
}

} // namespace

MessagePortProgramInstance::~MessagePortProgramInstance() {
    if (port_) {
        CFMessagePortInvalidate(port_.get());
    }
}

ProgramInstance::Claim MessagePortProgramInstance::claim(InstanceRequest::Kind asked) {
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        if (const auto claim = tellOwner(asked)) {
            return *claim;
        }
        if (takePort()) {
            break;
        }
    }
    if (!port_) {
        core::log(u"cannot tell whether the program runs already");
    }
    if (asked != InstanceRequest::Kind::Activate) {
        requests_.accept({asked, {}});
    }
    return Claim::First;
}

bool MessagePortProgramInstance::takePort() {
    CFMessagePortContext context{0, &requests_, nullptr, nullptr, nullptr};
    port_ = CfReference<CFMessagePortRef>(CFMessagePortCreateLocal(
        kCFAllocatorDefault, portName().get(), receive, &context, nullptr));
    if (!port_) {
        return false;
    }
    const CfReference<CFRunLoopSourceRef> source(
        CFMessagePortCreateRunLoopSource(kCFAllocatorDefault, port_.get(), 0));
    if (source) {
        CFRunLoopAddSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
    }
    return true;
}

core::Registration MessagePortProgramInstance::setRequestHandler(Handler handler) {
    return requests_.setRequestHandler(std::move(handler));
}

} // namespace platform
