#include "macos/fakes/cocoa/Objects.hh"

#include <AppKit/AppKit.h>
#include <QuartzCore/CALayer.h>

using cocoaFake::appKit;
using cocoaFake::Effect;
using cocoaFake::stateOf;
using cocoaFake::toNSRect;
using cocoaFake::Window;

namespace {

struct View {
    NSRect frame{};
    NSWindow* window = nil;
    NSView* superview = nil;
    NSMutableArray* subviews = nil;
    NSMutableArray* areas = nil;
    CALayer* layer = nil;
};

struct Area {
    NSTrackingAreaOptions options = 0;
    id owner = nil;
    NSDictionary* userInfo = nil;
};

NSView* viewOf(WId view) {
    return reinterpret_cast<NSView*>(view);
}

} // namespace

@implementation NSColor
+ (NSColor*)clearColor {
    static NSColor* const clear = [[NSColor alloc] init];
    return clear;
}
@end

@implementation CALayer
COUNTED(Effect)
RECORDS(setCornerRadius, CGFloat, Effect, cornerRadius)
ANSWERS(CGFloat, cornerRadius, Effect, cornerRadius)
RECORDS(setMasksToBounds, BOOL, Effect, masksToBounds)
ANSWERS(BOOL, masksToBounds, Effect, masksToBounds)
@end

@implementation NSResponder
@end

@implementation NSTrackingArea
- (id)initWithRect:(NSRect)rect
           options:(NSTrackingAreaOptions)options
             owner:(id)owner
          userInfo:(NSDictionary*)userInfo {
    self = [super init];
    cocoaFake::born();
    stateOf<Area>(self) = {options, owner, [userInfo retain]};
    return self;
}
- (void)dealloc {
    [stateOf<Area>(self).userInfo release];
    cocoaFake::states<Area>().erase(self);
    cocoaFake::died();
    [super dealloc];
}
ANSWERS(id, owner, Area, owner)
@end

@interface NSObject (HearsOfThePointer)
- (void)mouseEntered:(NSEvent*)event;
- (void)mouseMoved:(NSEvent*)event;
- (void)mouseExited:(NSEvent*)event;
@end

@implementation NSView
- (id)initWithFrame:(NSRect)frame {
    self = [super init];
    cocoaFake::born();
    stateOf<View>(self).frame = frame;
    stateOf<View>(self).subviews = [[NSMutableArray alloc] init];
    stateOf<View>(self).areas = [[NSMutableArray alloc] init];
    return self;
}
- (void)dealloc {
    [stateOf<View>(self).subviews release];
    [stateOf<View>(self).areas release];
    [stateOf<View>(self).layer release];
    cocoaFake::states<View>().erase(self);
    cocoaFake::died();
    [super dealloc];
}
ANSWERS(NSRect, frame, View, frame)
RECORDS(setFrame, NSRect, View, frame)
ANSWERS(NSWindow*, window, View, window)
ANSWERS(NSView*, superview, View, superview)
ANSWERS(NSArray*, subviews, View, subviews)
ANSWERS(NSArray*, trackingAreas, View, areas)
- (void)addTrackingArea:(NSTrackingArea*)area {
    [stateOf<View>(self).areas addObject:area];
}
- (void)setWantsLayer:(BOOL)wants {
    if (wants && stateOf<View>(self).layer == nil) {
        stateOf<View>(self).layer = [[CALayer alloc] init];
    }
}
ANSWERS(CALayer*, layer, View, layer)
- (void)addSubview:(NSView*)view positioned:(NSWindowOrderingMode)place relativeTo:(NSView*)other {
    NSMutableArray* const all = stateOf<View>(self).subviews;
    const bool above = place == NSWindowAbove;
    const NSUInteger index = other != nil ? [all indexOfObject:other] + (above ? 1 : 0)
                             : above      ? [all count]
                                          : 0;
    [all insertObject:view atIndex:index];
    stateOf<View>(view).superview = self;
}
@end

@implementation NSVisualEffectView
- (void)dealloc {
    cocoaFake::states<Effect>().erase(self);
    [super dealloc];
}
RECORDS(setMaterial, NSVisualEffectMaterial, Effect, material)
RECORDS(setBlendingMode, NSVisualEffectBlendingMode, Effect, blendingMode)
RECORDS(setState, NSVisualEffectState, Effect, state)
@end

@implementation NSWindow
- (void)dealloc {
    cocoaFake::states<Window>().erase(self);
    cocoaFake::died();
    [super dealloc];
}
RECORDS(setStyleMask, NSWindowStyleMask, Window, styleMask)
RECORDS(setLevel, NSWindowLevel, Window, level)
RECORDS(setCollectionBehavior, NSWindowCollectionBehavior, Window, collectionBehavior)
RECORDS(setHasShadow, BOOL, Window, hasShadow)
RECORDS(setMovable, BOOL, Window, movable)
RECORDS(setOpaque, BOOL, Window, opaque)
- (void)setBackgroundColor:(NSColor*)color {
    stateOf<Window>(self).clear = color == [NSColor clearColor];
}
- (NSInteger)windowNumber {
    return appKit().keyWindowNumber.value();
}
- (void)invalidateShadow {
    stateOf<Window>(self).shadowsComputed += 1;
}
- (void)orderFront:(id)sender {
    stateOf<Window>(self).ordered.push_back(sender == nil ? "front" : "front with sender");
}
- (void)makeKeyAndOrderFront:(id)sender {
    stateOf<Window>(self).ordered.push_back(sender == nil ? "key" : "key with sender");
}
@end

@implementation NSPanel
@end

@implementation NSColorPanel
+ (NSColorPanel*)sharedColorPanel {
    static NSColorPanel* const shared = [[NSColorPanel alloc] init];
    return shared;
}
- (void)setMode:(NSColorPanelMode)mode {
    appKit().colorPanelMode = mode;
}
- (NSRect)frame {
    return toNSRect(appKit().colorPanelFrame);
}
- (void)setFrameOrigin:(NSPoint)origin {
    appKit().colorPanelFrame.x = origin.x;
    appKit().colorPanelFrame.y = origin.y;
}
@end

@implementation NSScreen
+ (NSArray*)screens {
    NSMutableArray* const all = [NSMutableArray array];
    for (const auto& screen : appKit().screens) {
        NSScreen* const made = [[[NSScreen alloc] init] autorelease];
        stateOf<cocoaFake::Screen>(made) = screen;
        [all addObject:made];
    }
    return all;
}
+ (NSScreen*)mainScreen {
    return appKit().mainScreen ? [[NSScreen screens] objectAtIndex:*appKit().mainScreen] : nil;
}
- (NSRect)frame {
    return toNSRect(stateOf<cocoaFake::Screen>(self).frame);
}
- (NSRect)visibleFrame {
    return toNSRect(stateOf<cocoaFake::Screen>(self).visibleFrame);
}
@end

@implementation NSApplication
+ (NSApplication*)sharedApplication {
    static NSApplication* const shared = [[NSApplication alloc] init];
    return shared;
}
- (NSWindow*)keyWindow {
    static NSWindow* const key = [[NSWindow alloc] init];
    return appKit().keyWindowNumber ? key : nil;
}
- (BOOL)isActive {
    return appKit().isActive;
}
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy {
    appKit().activationPolicy = policy;
    return YES;
}
- (void)activateIgnoringOtherApps:(BOOL)ignoring {
    appKit().forward.push_back(ignoring);
}
@end

namespace cocoaFake {

namespace {
int live = 0;
}

void born() {
    ++live;
}

void died() {
    --live;
}

int liveObjects() {
    return live;
}

AppKit& appKit() {
    static AppKit state;
    return state;
}

Pool::Pool()
    : pool_([[NSAutoreleasePool alloc] init]) {}

Pool::~Pool() {
    [static_cast<NSAutoreleasePool*>(pool_) release];
}

WId openWindow(const platform::Rect& frame) {
    born();
    NSWindow* const window = [[NSWindow alloc] init];
    NSView* const border = [[NSView alloc] initWithFrame:toNSRect(frame)];
    NSView* const content =
        [[NSView alloc] initWithFrame:NSMakeRect(0, 0, frame.width, frame.height)];
    [border addSubview:content positioned:NSWindowAbove relativeTo:nil];
    [content release];
    stateOf<View>(border).window = window;
    stateOf<View>(content).window = window;
    return reinterpret_cast<WId>(content);
}

void closeWindow(WId view) {
    NSWindow* const window = viewOf(view).window;
    [viewOf(view).superview release];
    [window release];
}

const Window& windowOf(WId view) {
    return stateOf<Window>(viewOf(view).window);
}

std::vector<unsigned long> followed(WId view) {
    std::vector<unsigned long> result;
    for (NSTrackingArea* area in viewOf(view).trackingAreas) {
        result.push_back(stateOf<Area>(area).options);
    }
    return result;
}

void pointerOver(WId view, PointerEvent event) {
    for (NSTrackingArea* area in viewOf(view).trackingAreas) {
        switch (event) {
        case PointerEvent::Entered:
            [area.owner mouseEntered:nil];
            break;
        case PointerEvent::Moved:
            [area.owner mouseMoved:nil];
            break;
        case PointerEvent::Exited:
            [area.owner mouseExited:nil];
            break;
        }
    }
}

std::vector<Effect> effectsOf(WId view) {
    std::vector<Effect> result;
    NSArray* const siblings = viewOf(view).superview.subviews;
    for (NSUInteger index = 0; index < [siblings count]; ++index) {
        NSView* const sibling = [siblings objectAtIndex:index];
        for (NSView* inside in sibling.subviews) {
            if ([inside isKindOfClass:[NSVisualEffectView class]]) {
                Effect effect = stateOf<Effect>(inside);
                effect.positionFromBack = index;
                effect.cornerRadius = inside.layer.cornerRadius;
                effect.masksToBounds = inside.layer.masksToBounds && sibling.layer.masksToBounds;
                effect.frame = platform::toRect(inside.frame);
                effect.clip = platform::toRect(sibling.frame);
                effect.clipRadius = sibling.layer.cornerRadius;
                result.push_back(effect);
            }
        }
    }
    return result;
}

} // namespace cocoaFake
