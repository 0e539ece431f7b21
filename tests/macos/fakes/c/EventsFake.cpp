#include "macos/fakes/c/EventsFake.h"

namespace {

using appleFake::checked;
using appleFake::events;
using appleFake::made;
using appleFake::Object;

struct EventObject final : Object {
    EventObject(CGKeyCode k, bool down, CGEventFlags f)
        : Object(appleFake::Event)
        , key(k)
        , isDown(down)
        , flags(f) {}
    CGKeyCode key;
    bool isDown;
    CGEventFlags flags;
};

EventObject& event(CGEventRef reference, const char* caller) {
    return checked<EventObject>(reference, appleFake::Event, caller);
}

} // namespace

appleFake::Events& appleFake::events() {
    static Events instance;
    return instance;
}

CGEventSourceRef CGEventSourceCreate(CGEventSourceStateID state) {
    events().sources.push_back(state);
    return events().sourceCanBeMade ? made<CGEventSourceRef>(new Object(appleFake::EventSource))
                                    : nullptr;
}

CGEventRef CGEventCreateKeyboardEvent(CGEventSourceRef source, CGKeyCode key, bool isDown) {
    if (source != nullptr) {
        checked<Object>(source, appleFake::EventSource, "CGEventCreateKeyboardEvent");
    }
    if (!(isDown ? events().keyDownCanBeMade : events().keyUpCanBeMade)) {
        return nullptr;
    }
    const CGEventFlags flags = source != nullptr ? events().flagsOfSource : 0;
    return made<CGEventRef>(new EventObject(key, isDown, flags));
}

void CGEventSetFlags(CGEventRef reference, CGEventFlags flags) {
    event(reference, "CGEventSetFlags").flags = flags;
}

void CGEventPost(CGEventTapLocation tap, CGEventRef reference) {
    const EventObject& posted = event(reference, "CGEventPost");
    events().posted.push_back({tap, posted.key, posted.isDown, posted.flags, events().clock()});
}

bool CGPreflightScreenCaptureAccess() {
    return events().screenRecordingIsPermitted;
}

bool CGRequestScreenCaptureAccess() {
    ++events().screenRecordingRequests;
    return events().screenRecordingIsPermitted;
}
