#pragma once

#include <Foundation/Foundation.h>

#include "../Declaring.h"

#include <cstdint>
#include <sys/types.h>

// Read as it is also over another Foundation, which has no kinds of enumerations of its own.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wpedantic"

QUILLET_ASSUME_NONNULL_BEGIN

@class CALayer, NSColor, NSImage, NSResponder, NSView, NSWindow;

// appkit/nsapplication/activationpolicy-swift.enum
enum NSApplicationActivationPolicy : NSInteger {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};

// appkit/nsapplication/activationoptions
using NSApplicationActivationOptions = NSUInteger;

// appkit/nsrunningapplication
@interface NSRunningApplication : NSObject
@property(readonly) pid_t processIdentifier;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSString* localizedName;
@property(nullable, readonly, copy) NSURL* bundleURL;
@property(nullable, readonly, copy) NSURL* executableURL;
@property(readonly) NSApplicationActivationPolicy activationPolicy;
+ (nullable instancetype)runningApplicationWithProcessIdentifier:(pid_t)pid;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
@end

// appkit/nsworkspace
@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(nullable, readonly, strong) NSRunningApplication* frontmostApplication;
@property(readonly, copy) NSArray<NSRunningApplication*>* runningApplications;
- (NSImage*)iconForFile:(NSString*)fullPath;
- (BOOL)openURL:(NSURL*)url;
@end

// appkit/nsresponder
@interface NSResponder : NSObject
@end

// appkit/nsapplication
@interface NSApplication : NSResponder
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, readonly, weak) NSWindow* keyWindow;
@property(getter=isActive, readonly) BOOL active;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)flag;
@end

// appkit/nsscreen
@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(class, readonly, nullable, strong) NSScreen* mainScreen;
@property(readonly) NSRect frame;
@property(readonly) NSRect visibleFrame;
@end

// appkit/nsevent/eventtypemask
using NSEventMask = unsigned long long;
enum : NSEventMask {
    NSEventMaskLeftMouseDown = 1ULL << 1,
    NSEventMaskRightMouseDown = 1ULL << 3,
    NSEventMaskKeyDown = 1ULL << 10,
    NSEventMaskOtherMouseDown = 1ULL << 25,
};

// appkit/nsevent/modifierflags-swift.struct
using NSEventModifierFlags = NSUInteger;
enum : NSEventModifierFlags {
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
};

// appkit/nsevent
@interface NSEvent : NSObject
@property(readonly) NSEventModifierFlags modifierFlags;
@property(readonly) unsigned short keyCode;
@property(getter=isARepeat, readonly) BOOL ARepeat;
@property(class, readonly) NSPoint mouseLocation;
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent* event))block;
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
@end

// appkit/nscolor/clear
@interface NSColor : NSObject
@property(class, readonly, strong) NSColor* clearColor;
@end

// appkit/nswindow/orderingmode
enum NSWindowOrderingMode : NSInteger { NSWindowAbove = 1, NSWindowBelow = -1, NSWindowOut = 0 };

// appkit/nstrackingarea, options-swift.struct
using NSTrackingAreaOptions = NSUInteger;
enum : NSTrackingAreaOptions {
    NSTrackingMouseEnteredAndExited = 0x01,
    NSTrackingMouseMoved = 0x02,
    NSTrackingActiveAlways = 0x80,
    NSTrackingInVisibleRect = 0x200,
};
@interface NSTrackingArea : NSObject
- (instancetype)initWithRect:(NSRect)rect
                     options:(NSTrackingAreaOptions)options
                       owner:(nullable id)owner
                    userInfo:(nullable NSDictionary*)userInfo;
@property(readonly, weak, nullable) id owner;
@end

// appkit/nsview
@interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frameRect;
@property NSRect frame;
@property(nullable, readonly, unsafe_unretained) NSWindow* window;
@property(nullable, readonly, unsafe_unretained) NSView* superview;
@property(copy) NSArray<__kindof NSView*>* subviews;
@property BOOL wantsLayer;
@property(nullable, strong) CALayer* layer;
@property(readonly, copy) NSArray<NSTrackingArea*>* trackingAreas;
- (void)addTrackingArea:(NSTrackingArea*)trackingArea;
- (void)addSubview:(NSView*)view
        positioned:(NSWindowOrderingMode)place
        relativeTo:(nullable NSView*)otherView;
@end

// appkit/nsvisualeffectview, material-swift.enum, blendingmode-swift.enum, state-swift.enum
enum NSVisualEffectMaterial : NSInteger { NSVisualEffectMaterialHUDWindow = 13 };
enum NSVisualEffectBlendingMode : NSInteger {
    NSVisualEffectBlendingModeBehindWindow,
    NSVisualEffectBlendingModeWithinWindow,
};
enum NSVisualEffectState : NSInteger {
    NSVisualEffectStateFollowsWindowActiveState,
    NSVisualEffectStateActive,
    NSVisualEffectStateInactive,
};
@interface NSVisualEffectView : NSView
@property NSVisualEffectMaterial material;
@property NSVisualEffectBlendingMode blendingMode;
@property NSVisualEffectState state;
@end

// appkit/nswindow/stylemask-swift.struct
using NSWindowStyleMask = NSUInteger;
enum : NSWindowStyleMask { NSWindowStyleMaskBorderless = 0 };

// appkit/nswindow/collectionbehavior-swift.struct
using NSWindowCollectionBehavior = NSUInteger;
enum : NSWindowCollectionBehavior {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
    NSWindowCollectionBehaviorStationary = 1 << 4,
};

// appkit/nswindow/level-swift.struct; the constant is Quartz's level of floating windows, 3
using NSWindowLevel = NSInteger;
static const NSWindowLevel NSFloatingWindowLevel = 3;

// appkit/nswindow
@interface NSWindow : NSResponder
@property NSWindowStyleMask styleMask;
@property NSWindowLevel level;
@property NSWindowCollectionBehavior collectionBehavior;
@property BOOL hasShadow;
@property(getter=isMovable) BOOL movable;
@property(getter=isOpaque) BOOL opaque;
@property(null_resettable, copy) NSColor* backgroundColor;
@property(nullable, strong) __kindof NSView* contentView;
@property(readonly) NSInteger windowNumber;
@property(readonly) NSRect frame;
- (void)invalidateShadow;
- (void)orderFront:(nullable id)sender;
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)setFrameOrigin:(NSPoint)point;
@end

// appkit/nspanel
@interface NSPanel : NSWindow
@end

// appkit/nscolorpanel, mode-swift.enum
enum NSColorPanelMode : NSInteger { NSColorPanelModeColorList = 5 };
@interface NSColorPanel : NSPanel
@property(class, readonly, strong) NSColorPanel* sharedColorPanel;
@property NSColorPanelMode mode;
@end

// appkit/nsalert, nsalert/style, nsapplication/modalresponse
using NSModalResponse = NSInteger;
static const NSModalResponse NSAlertFirstButtonReturn = 1000;
enum NSAlertStyle : NSUInteger {
    NSAlertStyleWarning = 0,
    NSAlertStyleInformational = 1,
    NSAlertStyleCritical = 2,
};
@class NSButton;
@interface NSAlert : NSObject
@property(copy) NSString* messageText;
@property(copy) NSString* informativeText;
@property NSAlertStyle alertStyle;
- (NSButton*)addButtonWithTitle:(NSString*)title;
- (NSModalResponse)runModal;
@end

// appkit/nscolorspacename/devicergb
using NSColorSpaceName = NSString*;
extern "C" NSColorSpaceName NSDeviceRGBColorSpace;

// appkit/nsbitmapimagerep
@interface NSImageRep : NSObject
@end
@interface NSBitmapImageRep : NSImageRep
- (nullable instancetype)initWithBitmapDataPlanes:(unsigned char* _Nullable* _Nullable)planes
                                       pixelsWide:(NSInteger)width
                                       pixelsHigh:(NSInteger)height
                                    bitsPerSample:(NSInteger)bps
                                  samplesPerPixel:(NSInteger)spp
                                         hasAlpha:(BOOL)alpha
                                         isPlanar:(BOOL)isPlanar
                                   colorSpaceName:(NSColorSpaceName)colorSpaceName
                                      bytesPerRow:(NSInteger)rBytes
                                     bitsPerPixel:(NSInteger)pBits;
@property(nullable, readonly) unsigned char* bitmapData __attribute__((objc_returns_inner_pointer));
@property(readonly) NSInteger bytesPerRow;
@end

// appkit/nsgraphicscontext
@interface NSGraphicsContext : NSObject
@property(class, nullable, strong) NSGraphicsContext* currentContext;
+ (nullable NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)bitmapRep;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
- (void)flushGraphics;
@end

// appkit/nscompositingoperation
enum NSCompositingOperation : NSUInteger {
    NSCompositingOperationClear,
    NSCompositingOperationCopy,
    NSCompositingOperationSourceOver,
};

// appkit/nsfont/weight; constants of the framework
using NSFontWeight = CGFloat;
extern "C" const NSFontWeight NSFontWeightRegular;
extern "C" const NSFontWeight NSFontWeightMedium;
extern "C" const NSFontWeight NSFontWeightSemibold;
extern "C" const NSFontWeight NSFontWeightBold;

// appkit/nsimage/symbolconfiguration-swift.class
@interface NSImageSymbolConfiguration : NSObject
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
@end

// appkit/nsimage
@interface NSImage : NSObject
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
@property NSSize size;
- (void)drawInRect:(NSRect)dstRect
          fromRect:(NSRect)srcRect
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)delta;
@end

QUILLET_ASSUME_NONNULL_END
#pragma clang diagnostic pop
