#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <cstddef>

QUILLET_ASSUME_NONNULL_BEGIN
extern "C" {

// corefoundation/cgfloat, cgpoint, cgsize, cgrect
using CGFloat = double;
struct CGPoint {
    CGFloat x;
    CGFloat y;
};
struct CGSize {
    CGFloat width;
    CGFloat height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};

// coregraphics/cgevent, cgeventsource, cgkeycode
using CGEventRef = struct __CGEvent*;
using CGEventSourceRef = struct __CGEventSource*;
using CGKeyCode = std::uint16_t;

// coregraphics/cgeventflags, and its members maskshift, maskcontrol, maskalternate, maskcommand
using CGEventFlags = std::uint64_t;
enum : CGEventFlags {
    kCGEventFlagMaskShift = 0x00020000,
    kCGEventFlagMaskControl = 0x00040000,
    kCGEventFlagMaskAlternate = 0x00080000,
    kCGEventFlagMaskCommand = 0x00100000,
};

// coregraphics/cgeventtaplocation
enum CGEventTapLocation : std::uint32_t {
    kCGHIDEventTap = 0,
    kCGSessionEventTap = 1,
    kCGAnnotatedSessionEventTap = 2,
};

// coregraphics/cgeventsourcestateid
enum CGEventSourceStateID : std::int32_t {
    kCGEventSourceStatePrivate = -1,
    kCGEventSourceStateCombinedSessionState = 0,
    kCGEventSourceStateHIDSystemState = 1,
};

// coregraphics/cgeventsource/init(stateid:)
CGEventSourceRef _Nullable CGEventSourceCreate(CGEventSourceStateID stateID);

// coregraphics/cgevent/init(keyboardeventsource:virtualkey:keydown:)
CGEventRef _Nullable CGEventCreateKeyboardEvent(CGEventSourceRef _Nullable source,
                                                CGKeyCode virtualKey, bool keyDown);

// coregraphics/cgevent/flags
void CGEventSetFlags(CGEventRef _Nullable event, CGEventFlags flags);

// coregraphics/cgevent/post(tap:)
void CGEventPost(CGEventTapLocation tap, CGEventRef _Nullable event);

// coregraphics/cgpreflightscreencaptureaccess(), cgrequestscreencaptureaccess()
bool CGPreflightScreenCaptureAccess() QUILLET_MACOS(10.15);
bool CGRequestScreenCaptureAccess() QUILLET_MACOS(10.15);

// coregraphics/cgrectnull
extern const CGRect CGRectNull;

// coregraphics/cgwindowid, cgwindowlistoption, cgwindowimageoption
using CGWindowID = std::uint32_t;
using CGWindowListOption = std::uint32_t;
enum : CGWindowListOption { kCGWindowListOptionOnScreenBelowWindow = 1U << 2U };
using CGWindowImageOption = std::uint32_t;
enum : CGWindowImageOption { kCGWindowImageBoundsIgnoreFraming = 1U << 0U };

// coregraphics/cgimage, cgcontext, cgcolorspace
using CGImageRef = struct CGImage*;
using CGContextRef = struct CGContext*;
using CGColorSpaceRef = struct CGColorSpace*;

// coregraphics/cgimage/width, height
std::size_t CGImageGetWidth(CGImageRef _Nullable image);
std::size_t CGImageGetHeight(CGImageRef _Nullable image);

// coregraphics/cgcolorspace/init(name:), srgb
extern const CFStringRef kCGColorSpaceSRGB;
CGColorSpaceRef _Nullable CGColorSpaceCreateWithName(CFStringRef _Nullable name);

// coregraphics/cgimagealphainfo, cgbitmapinfo
enum CGImageAlphaInfo : std::uint32_t { kCGImageAlphaPremultipliedFirst = 2 };
using CGBitmapInfo = std::uint32_t;
enum : CGBitmapInfo { kCGBitmapByteOrder32Little = 2U << 12U };

// coregraphics/cgcontext/init(data:width:height:bitspercomponent:bytesperrow:space:bitmapinfo:)
CGContextRef _Nullable CGBitmapContextCreate(void* _Nullable data, std::size_t width,
                                             std::size_t height, std::size_t bitsPerComponent,
                                             std::size_t bytesPerRow,
                                             CGColorSpaceRef _Nullable space,
                                             std::uint32_t bitmapInfo);

// coregraphics/1454845-cgcontextdrawimage
void CGContextDrawImage(CGContextRef _Nullable c, CGRect rect, CGImageRef _Nullable image);

} // extern "C"
QUILLET_ASSUME_NONNULL_END
