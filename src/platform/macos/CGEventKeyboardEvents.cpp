#include "platform/macos/CGEventKeyboardEvents.h"

#include "core/Fatal.h"
#include "platform/macos/CfReference.h"

#include <CoreGraphics/CoreGraphics.h>

#include <utility>

namespace platform {

namespace {

// The flags are handed on as they are.
static_assert(modifierFlags::shift == kCGEventFlagMaskShift);
static_assert(modifierFlags::control == kCGEventFlagMaskControl);
static_assert(modifierFlags::option == kCGEventFlagMaskAlternate);
static_assert(modifierFlags::command == kCGEventFlagMaskCommand);

struct QuartzSource final : EventSource {
    explicit QuartzSource(CfReference<CGEventSourceRef> s)
        : source(std::move(s)) {}

    CfReference<CGEventSourceRef> source;
};

struct QuartzKeyEvent final : KeyEvent {
    explicit QuartzKeyEvent(CfReference<CGEventRef> e)
        : event(std::move(e)) {}
    void setFlags(std::uint64_t flags) override { CGEventSetFlags(event.get(), flags); }

    CfReference<CGEventRef> event;
};

CGEventSourceStateID stateId(EventSourceState state) {
    switch (state) {
    case EventSourceState::HidSystem:
        return kCGEventSourceStateHIDSystemState;
    }
    core::fatal(u"an event source state that does not exist");
}

CGEventTapLocation tapLocation(EventTap tap) {
    switch (tap) {
    case EventTap::Hid:
        return kCGHIDEventTap;
    }
    core::fatal(u"an event tap that does not exist");
}

} // namespace

std::unique_ptr<EventSource> CGEventKeyboardEvents::createSource(EventSourceState state) {
    CfReference<CGEventSourceRef> source(CGEventSourceCreate(stateId(state)));
    return source ? std::make_unique<QuartzSource>(std::move(source)) : nullptr;
}

std::unique_ptr<KeyEvent> CGEventKeyboardEvents::createKeyEvent(const EventSource* source,
                                                                KeyCode key,
                                                                KeyDirection direction) {
    const auto* known = static_cast<const QuartzSource*>(source);
    CfReference<CGEventRef> event(CGEventCreateKeyboardEvent(
        known != nullptr ? known->source.get() : nullptr, key, direction == KeyDirection::Down));
    return event ? std::make_unique<QuartzKeyEvent>(std::move(event)) : nullptr;
}

void CGEventKeyboardEvents::post(const KeyEvent& event, EventTap tap) {
    CGEventPost(tapLocation(tap), static_cast<const QuartzKeyEvent&>(event).event.get());
}

} // namespace platform
