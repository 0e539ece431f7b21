#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <Foundation/Foundation.h>

#include "../Declaring.h"

#include <cstddef>
#include <cstdint>

// As the SDK's <os/availability.h> writes it.
#define QUILLET_AVAILABLE_macos(version) macos, introduced = version
#define API_AVAILABLE(platform) __attribute__((availability(QUILLET_AVAILABLE_##platform)))

#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wpedantic"

QUILLET_ASSUME_NONNULL_BEGIN

// screencapturekit/scwindow
QUILLET_MACOS(12.3)
@interface SCWindow : NSObject
@property(readonly) CGWindowID windowID;
@property(readonly) CGRect frame;
@end

// screencapturekit/scdisplay
QUILLET_MACOS(12.3)
@interface SCDisplay : NSObject
@property(readonly) CGRect frame;
@end

// screencapturekit/scshareablecontent
@class SCShareableContent;
typedef void (^SCShareableContentHandler)(SCShareableContent* _Nullable content,
                                          NSError* _Nullable error);
QUILLET_MACOS(12.3)
@interface SCShareableContent : NSObject
@property(readonly) NSArray<SCWindow*>* windows;
@property(readonly) NSArray<SCDisplay*>* displays;
+ (void)getShareableContentExcludingDesktopWindows:(BOOL)excludeDesktopWindows
                               onScreenWindowsOnly:(BOOL)onScreenWindowsOnly
                                 completionHandler:(SCShareableContentHandler)completionHandler;
+ (void)getShareableContentExcludingDesktopWindows:(BOOL)excludeDesktopWindows
                    onScreenWindowsOnlyBelowWindow:(SCWindow*)window
                                 completionHandler:(SCShareableContentHandler)completionHandler;
@end

// screencapturekit/sccontentfilter
QUILLET_MACOS(12.3)
@interface SCContentFilter : NSObject
- (instancetype)initWithDisplay:(SCDisplay*)display
               includingWindows:(NSArray<SCWindow*>*)includedWindows;
@property(readonly) float pointPixelScale QUILLET_MACOS(14.0);
@property(readonly) CGRect contentRect QUILLET_MACOS(14.0);
@end

// screencapturekit/scstreamconfiguration
QUILLET_MACOS(12.3)
@interface SCStreamConfiguration : NSObject
@property std::size_t width;
@property std::size_t height;
@property BOOL showsCursor;
@property BOOL ignoreShadowsDisplay QUILLET_MACOS(14.0);
@end

// screencapturekit/scscreenshotmanager
QUILLET_MACOS(14.0)
@interface SCScreenshotManager : NSObject
+ (void)captureImageWithFilter:(SCContentFilter*)contentFilter
                 configuration:(SCStreamConfiguration*)config
             completionHandler:(void (^_Nullable)(CGImageRef _Nullable sampleBuffer,
                                                  NSError* _Nullable error))completionHandler;
@end

QUILLET_ASSUME_NONNULL_END
#pragma clang diagnostic pop
