#include "platform/macos/NSEventMonitors.h"

#include "platform/KeyboardEvents.h"
#include "platform/macos/CocoaValues.hh"
#include "platform/macos/Strong.hh"

#include <AppKit/AppKit.h>

#include <memory>
#include <utility>

namespace platform {

namespace {

constexpr NSEventMask presses =
    NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown | NSEventMaskOtherMouseDown;

// The flags of an event are handed on as they are.
static_assert(modifierFlags::shift == NSEventModifierFlagShift);
static_assert(modifierFlags::control == NSEventModifierFlagControl);
static_assert(modifierFlags::option == NSEventModifierFlagOption);
static_assert(modifierFlags::command == NSEventModifierFlagCommand);

/// Ends when the registration does; what the system refused is no registration.
core::Registration keep(id monitor) {
    if (monitor == nil) {
        return {};
    }
    return core::Registration([kept = Strong<id>(monitor)] { [NSEvent removeMonitor:kept.get()]; });
}

} // namespace

core::Registration NSEventKeyMonitor::addKeyDownMonitor(Handler handler) {
    // Shared, so that a handler may end its own monitor.
    const auto shared = std::make_shared<const Handler>(std::move(handler));
    return keep([NSEvent
        addGlobalMonitorForEventsMatchingMask:NSEventMaskKeyDown
                                      handler:^(NSEvent* event) {
                                        const auto alive = shared;
                                        if (!event.isARepeat) {
                                            (*alive)({event.keyCode, event.modifierFlags});
                                        }
                                      }]);
}

core::Registration NSEventPointerMonitor::addDismissMonitor(Handler handler) {
    const auto shared = std::make_shared<const Handler>(std::move(handler));
    const auto tell = [shared] {
        const auto alive = shared;
        (*alive)({DismissReason::PointerPressed, toPoint([NSEvent mouseLocation])});
    };
    auto elsewhere = std::make_shared<core::Registration>(
        keep([NSEvent addGlobalMonitorForEventsMatchingMask:presses
                                                    handler:^(NSEvent*) {
                                                      tell();
                                                    }]));
    auto here = std::make_shared<core::Registration>(
        keep([NSEvent addLocalMonitorForEventsMatchingMask:presses
                                                   handler:^NSEvent*(NSEvent* event) {
                                                     tell();
                                                     return event;
                                                   }]));
    if (!*elsewhere && !*here) {
        return {};
    }
    return core::Registration([elsewhere, here] {
        elsewhere->reset();
        here->reset();
    });
}

} // namespace platform
