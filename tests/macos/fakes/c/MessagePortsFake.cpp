#include "macos/fakes/c/MessagePortsFake.h"

namespace {

using appleFake::checked;
using appleFake::made;
using appleFake::messagePorts;
using appleFake::Object;

struct PortObject final : Object {
    PortObject()
        : Object(appleFake::Port) {}
    CFMessagePortCallBack callBack = nullptr;
    void* info = nullptr;
    /// Held by the main run loop.
    CFRunLoopSourceRef source = nullptr;
};

struct SourceObject final : Object {
    explicit SourceObject(CFMessagePortRef p)
        : Object(appleFake::RunLoopSource)
        , port(p) {}
    CFMessagePortRef port;
};

/// The port of this process that has the name.
CFMessagePortRef registered = nullptr;

PortObject& port(CFMessagePortRef reference, const char* caller) {
    return checked<PortObject>(reference, appleFake::Port, caller);
}

} // namespace

appleFake::MessagePorts& appleFake::messagePorts() {
    static MessagePorts instance;
    return instance;
}

const CFRunLoopMode kCFRunLoopDefaultMode = CFSTR("kCFRunLoopDefaultMode");
const CFRunLoopMode kCFRunLoopCommonModes = CFSTR("kCFRunLoopCommonModes");

CFRunLoopRef CFRunLoopGetMain() {
    static const auto main = [] {
        auto* object = new Object(appleFake::RunLoop);
        object->isConstant = true;
        return made<CFRunLoopRef>(object);
    }();
    return main;
}

void CFRunLoopAddSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode) {
    checked<Object>(loop, appleFake::RunLoop, "CFRunLoopAddSource");
    const auto& added =
        checked<SourceObject>(source, appleFake::RunLoopSource, "CFRunLoopAddSource");
    // A source of the default mode alone would rest while the toolkit shows a menu.
    if (mode == kCFRunLoopCommonModes) {
        CFRetain(source);
        port(added.port, "CFRunLoopAddSource").source = source;
    }
}

CFMessagePortRef CFMessagePortCreateLocal(CFAllocatorRef, CFStringRef name,
                                          CFMessagePortCallBack callBack,
                                          CFMessagePortContext* context, Boolean*) {
    checked(name, "CFMessagePortCreateLocal");
    if (registered != nullptr || !messagePorts().answersOfOwner.empty() ||
        !messagePorts().localCanBeMade) {
        return nullptr;
    }
    auto* object = new PortObject;
    object->callBack = callBack;
    object->info = context->info;
    registered = made<CFMessagePortRef>(object);
    return registered;
}

CFMessagePortRef CFMessagePortCreateRemote(CFAllocatorRef, CFStringRef name) {
    checked(name, "CFMessagePortCreateRemote");
    const bool somebodyHasIt = registered != nullptr || !messagePorts().answersOfOwner.empty();
    return somebodyHasIt ? made<CFMessagePortRef>(new PortObject) : nullptr;
}

CFRunLoopSourceRef CFMessagePortCreateRunLoopSource(CFAllocatorRef, CFMessagePortRef local,
                                                    CFIndex) {
    port(local, "CFMessagePortCreateRunLoopSource");
    return made<CFRunLoopSourceRef>(new SourceObject(local));
}

void CFMessagePortInvalidate(CFMessagePortRef reference) {
    PortObject& object = port(reference, "CFMessagePortInvalidate");
    if (object.source != nullptr) {
        CFRelease(object.source);
        object.source = nullptr;
    }
    object.callBack = nullptr;
    registered = reference == registered ? nullptr : registered;
}

SInt32 CFMessagePortSendRequest(CFMessagePortRef remote, SInt32 message, CFDataRef,
                                CFTimeInterval sendTimeout, CFTimeInterval receiveTimeout,
                                CFStringRef replyMode, CFDataRef* answer) {
    port(remote, "CFMessagePortSendRequest");
    messagePorts().limits.emplace_back(sendTimeout, receiveTimeout);
    if (registered != nullptr) {
        const PortObject& local = port(registered, "CFMessagePortSendRequest");
        if (local.source == nullptr) {
            return kCFMessagePortReceiveTimeout;
        }
        *answer = local.callBack(registered, message, nullptr, local.info);
        return kCFMessagePortSuccess;
    }
    auto& answers = messagePorts().answersOfOwner;
    const SInt32 result = answers.front();
    answers.erase(answers.begin());
    // Without a mode in which to wait nobody learns that the message was not taken.
    return replyMode == nullptr ? kCFMessagePortSuccess : result;
}
