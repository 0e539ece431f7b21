#include "platform/macos/NativeWindow.h"

#include "platform/macos/CocoaValues.hh"
#include "platform/macos/Strong.hh"

#include <AppKit/AppKit.h>
#include <QuartzCore/CALayer.h>

/// Hears of the pointer over one view.
@interface QuilletPointerFollower : NSObject {
@public
    WId view;
    platform::nativeWindow::PointerHandlers handlers;
}
@end

@implementation QuilletPointerFollower
- (void)mouseEntered:(NSEvent*)event {
    [self mouseMoved:event];
}
- (void)mouseMoved:(NSEvent*)event {
    if (![NSApplication sharedApplication].active) {
        handlers.moved(view, platform::toPoint([NSEvent mouseLocation]));
    }
}
- (void)mouseExited:(NSEvent*)event {
    if (![NSApplication sharedApplication].active) {
        handlers.left(view);
    }
}
@end

/// Cuts the blurred picture to the window's round corners.
@interface QuilletMaterialClip : NSView
@end

@implementation QuilletMaterialClip
@end

namespace platform::nativeWindow {

namespace {

static_assert(static_cast<NSInteger>(VisualEffectMaterial::HudWindow) ==
              NSVisualEffectMaterialHUDWindow);
static_assert(static_cast<NSInteger>(VisualEffectBlendingMode::BehindWindow) ==
              NSVisualEffectBlendingModeBehindWindow);

/// On this system a window's identifier in the toolkit is the address of its view.
NSView* viewOf(WId view) {
    return (__bridge NSView*)reinterpret_cast<void*>(view);
}

/// The subview of that class: the one made before, or a new one below `sibling`.
template <typename View>
Strong<View*> subviewOf(NSView* parent, NSView* sibling) {
    for (NSView* view in parent.subviews) {
        if ([view isKindOfClass:[View class]]) {
            return Strong<View*>(static_cast<View*>(view));
        }
    }
    auto made = Strong<View*>::adopt([[View alloc] initWithFrame:NSZeroRect]);
    [parent addSubview:made.get() positioned:NSWindowBelow relativeTo:sibling];
    return made;
}

void roundCorners(NSView* view, double radius) {
    view.wantsLayer = YES;
    view.layer.cornerRadius = radius;
    view.layer.masksToBounds = YES;
}

bool isFollowed(NSView* view) {
    for (NSTrackingArea* area in view.trackingAreas) {
        if ([area.owner isKindOfClass:[QuilletPointerFollower class]]) {
            return true;
        }
    }
    return false;
}

} // namespace

void makeFloating(WId view) {
    NSWindow* window = viewOf(view).window;
    window.styleMask = NSWindowStyleMaskBorderless;
    window.opaque = NO;
    window.backgroundColor = [NSColor clearColor];
    window.level = NSFloatingWindowLevel;
    window.hasShadow = YES;
    window.movable = NO;
    window.collectionBehavior =
        NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorStationary;
    // Of a window without a frame the shadow follows what is drawn, and that has just changed.
    [window invalidateShadow];
}

void followPointer(WId view, const PointerHandlers& handlers) {
    @autoreleasepool {
        NSView* const followed = viewOf(view);
        if (isFollowed(followed)) {
            return;
        }
        const auto follower =
            Strong<QuilletPointerFollower*>::adopt([[QuilletPointerFollower alloc] init]);
        follower.get()->view = view;
        follower.get()->handlers = handlers;
        // The area does not own its owner, but what is noted beside it.
        const auto area = Strong<NSTrackingArea*>::adopt([[NSTrackingArea alloc]
            initWithRect:NSZeroRect
                 options:NSTrackingMouseEnteredAndExited | NSTrackingMouseMoved |
                         NSTrackingActiveAlways | NSTrackingInVisibleRect
                   owner:follower.get()
                userInfo:[NSDictionary dictionaryWithObject:follower.get() forKey:@"owner"]]);
        [followed addTrackingArea:area.get()];
    }
}

void orderFront(WId view) {
    [viewOf(view).window orderFront:nil];
}

void bringToFront(WId view) {
    [viewOf(view).window makeKeyAndOrderFront:nil];
    // The windows of an accessory stay behind the active application's unless it insists.
    [[NSApplication sharedApplication] activateIgnoringOtherApps:YES];
}

void setMaterial(WId view, const Rect& frame, const WindowMaterial& material) {
    NSView* const content = viewOf(view);
    const auto clip = subviewOf<QuilletMaterialClip>(content.superview, content);
    clip.get().frame = content.frame;
    roundCorners(clip.get(), material.cornerRadius);
    const auto effect = subviewOf<NSVisualEffectView>(clip.get(), nil);
    effect.get().frame = NSMakeRect(frame.x, frame.y, frame.width, frame.height);
    effect.get().material = static_cast<NSVisualEffectMaterial>(material.material);
    effect.get().blendingMode = static_cast<NSVisualEffectBlendingMode>(material.blendingMode);
    effect.get().state = NSVisualEffectStateActive;
    roundCorners(effect.get(), material.cornerRadius);
}

std::int64_t keyWindowNumber() {
    NSWindow* window = [NSApplication sharedApplication].keyWindow;
    return window == nil ? 0 : window.windowNumber;
}

void becomeAccessory() {
    [[NSApplication sharedApplication] setActivationPolicy:NSApplicationActivationPolicyAccessory];
    // The system slows down the timers of a process that shows no window.
    static const Strong<id> awake([[NSProcessInfo processInfo]
        beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                          reason:@"Looking for selected text"]);
}

} // namespace platform::nativeWindow
