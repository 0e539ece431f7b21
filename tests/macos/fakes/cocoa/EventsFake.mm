#include "macos/fakes/cocoa/Objects.hh"

#include <AppKit/AppKit.h>

#include <Block.h>

#include <algorithm>

using cocoaFake::appKit;
using cocoaFake::KeyDown;
using cocoaFake::stateOf;

namespace {

struct Monitor {
    NSObject* token = nil;
    NSEventMask mask = 0;
    void (^global)(NSEvent*) = nullptr;
    NSEvent* (^local)(NSEvent*) = nullptr;
};

std::vector<Monitor>& monitors() {
    static std::vector<Monitor> all;
    return all;
}

id install(Monitor monitor) {
    if (appKit().refusesMonitors) {
        return nil;
    }
    if (monitor.global != nullptr) {
        monitor.global = Block_copy(monitor.global);
    } else {
        monitor.local = Block_copy(monitor.local);
    }
    // Like the real one: the caller keeps the token alive.
    monitor.token = [[[NSObject alloc] init] autorelease];
    monitors().push_back(monitor);
    return monitor.token;
}

NSEvent* event(const KeyDown& key) {
    NSEvent* const made = [[[NSEvent alloc] init] autorelease];
    stateOf<KeyDown>(made) = key;
    return made;
}

std::vector<unsigned long long> masks(bool global) {
    std::vector<unsigned long long> result;
    for (const auto& monitor : monitors()) {
        if ((monitor.global != nullptr) == global) {
            result.push_back(monitor.mask);
        }
    }
    return result;
}

void sendElsewhere(NSEventMask kind, const KeyDown& key) {
    // A handler may end its own monitor.
    for (const auto& monitor : std::vector(monitors())) {
        if (monitor.global != nullptr && (monitor.mask & kind) != 0) {
            monitor.global(event(key));
        }
    }
}

} // namespace

@implementation NSEvent
COUNTED(KeyDown)
ANSWERS(NSEventModifierFlags, modifierFlags, KeyDown, modifierFlags)
ANSWERS(unsigned short, keyCode, KeyDown, keyCode)
ANSWERS(BOOL, isARepeat, KeyDown, repeated)
+ (NSPoint)mouseLocation {
    return NSMakePoint(appKit().mouseLocation.x, appKit().mouseLocation.y);
}
+ (id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent*))block {
    return install({nil, mask, block, nullptr});
}
+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(NSEvent* (^)(NSEvent*))block {
    return install({nil, mask, nullptr, block});
}
+ (void)removeMonitor:(id)token {
    const auto found = std::find_if(monitors().begin(), monitors().end(),
                                    [&](const Monitor& monitor) { return monitor.token == token; });
    if (found == monitors().end()) {
        std::abort(); // a token that nobody gave, or gave back already
    }
    const Monitor removed = *found;
    monitors().erase(found);
    removed.global != nullptr ? Block_release(removed.global) : Block_release(removed.local);
}
@end

namespace cocoaFake {

std::vector<unsigned long long> globalMonitors() {
    return masks(true);
}

std::vector<unsigned long long> localMonitors() {
    return masks(false);
}

void keyDownElsewhere(const KeyDown& key) {
    sendElsewhere(NSEventMaskKeyDown, key);
}

void pressElsewhere() {
    sendElsewhere(NSEventMaskLeftMouseDown, {});
}

int pressHere() {
    int swallowed = 0;
    for (const auto& monitor : std::vector(monitors())) {
        if (monitor.local != nullptr && (monitor.mask & NSEventMaskLeftMouseDown) != 0) {
            NSEvent* const press = event({});
            swallowed += monitor.local(press) == press ? 0 : 1;
        }
    }
    return swallowed;
}

} // namespace cocoaFake
