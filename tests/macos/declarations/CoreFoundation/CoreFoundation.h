#pragma once

#include "../Declaring.h"

#include <cstdint>

QUILLET_ASSUME_NONNULL_BEGIN
extern "C" {

// The SDK's <MacTypes.h>, which has no page; corefoundation/cfindex, cftypeid, cftimeinterval
using Boolean = unsigned char;
using SInt32 = std::int32_t;
using UInt32 = std::uint32_t;
using UniChar = std::uint16_t;
using CFIndex = long;
using CFTypeID = unsigned long;
using CFTimeInterval = double;

// corefoundation/cftyperef, cfallocator, cfstring, cfboolean, cfdictionary, cfdata
using CFTypeRef = const void*;
using CFAllocatorRef = const struct __CFAllocator*;
using CFStringRef = const struct __CFString*;
using CFBooleanRef = const struct __CFBoolean*;
using CFDictionaryRef = const struct __CFDictionary*;
using CFDataRef = const struct __CFData*;

// corefoundation/cfretain, cfrelease, cfgettypeid(_:)
CFTypeRef CFRetain(CFTypeRef cf);
void CFRelease(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);

// corefoundation/kcfallocatordefault, kcfbooleantrue
extern const CFAllocatorRef _Nullable kCFAllocatorDefault;
extern const CFBooleanRef _Nullable kCFBooleanTrue;

// corefoundation/cfrange, cfrangemake(_:_:)
struct CFRange {
    CFIndex location;
    CFIndex length;
};
inline CFRange CFRangeMake(CFIndex location, CFIndex length) {
    return {location, length};
}

// corefoundation/cfstringgettypeid(), cfstringcreatewithcharacters(_:_:_:), cfstringgetlength(_:),
// cfstringgetcharacters(_:_:_:)
CFTypeID CFStringGetTypeID();
CFStringRef _Nullable CFStringCreateWithCharacters(CFAllocatorRef _Nullable alloc,
                                                   const UniChar* _Nullable chars,
                                                   CFIndex numChars);
CFIndex CFStringGetLength(CFStringRef theString);
void CFStringGetCharacters(CFStringRef theString, CFRange range, UniChar* buffer);

// corefoundation/cfstr: a constant of the program, which nobody releases
#ifdef __APPLE_CC__
#define CFSTR(text) (reinterpret_cast<CFStringRef>(__builtin___CFStringMakeConstantString(text)))
#else
CFStringRef __CFStringMakeConstantString(const char* text);
#define CFSTR(text) __CFStringMakeConstantString(text)
#endif

// corefoundation/cfdictionarykeycallbacks, cfdictionaryvaluecallbacks and their constants: opaque
// here
struct CFDictionaryKeyCallBacks;
struct CFDictionaryValueCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;

// corefoundation/cfdictionarycreate(_:_:_:_:_:_:)
CFDictionaryRef _Nullable CFDictionaryCreate(
    CFAllocatorRef _Nullable allocator, const void* _Nullable* _Nullable keys,
    const void* _Nullable* _Nullable values, CFIndex numValues,
    const CFDictionaryKeyCallBacks* _Nullable keyCallBacks,
    const CFDictionaryValueCallBacks* _Nullable valueCallBacks);

// corefoundation/cfrunloop, cfrunloopsource, cfrunloopmode
using CFRunLoopRef = struct __CFRunLoop*;
using CFRunLoopSourceRef = struct __CFRunLoopSource*;
using CFRunLoopMode = CFStringRef;
extern const CFRunLoopMode kCFRunLoopDefaultMode;
extern const CFRunLoopMode kCFRunLoopCommonModes;

// corefoundation/cfrunloopgetmain(), cfrunloopaddsource(_:_:_:)
CFRunLoopRef CFRunLoopGetMain();
void CFRunLoopAddSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode);

// corefoundation/cfmessageport, cfmessageportcontext, cfmessageportcallback
using CFMessagePortRef = struct __CFMessagePort*;
struct CFMessagePortContext {
    CFIndex version;
    void* _Nullable info;
    const void* _Nullable (*_Nullable retain)(const void* _Nullable info);
    void (*_Nullable release)(const void* _Nullable info);
    CFStringRef _Nullable (*_Nullable copyDescription)(const void* _Nullable info);
};
using CFMessagePortCallBack = CFDataRef _Nullable (*)(CFMessagePortRef _Nullable local,
                                                      SInt32 msgid, CFDataRef _Nullable data,
                                                      void* _Nullable info);

// corefoundation/cfmessageportcreatelocal(_:_:_:_:_:), cfmessageportcreateremote(_:_:)
CFMessagePortRef _Nullable CFMessagePortCreateLocal(CFAllocatorRef _Nullable allocator,
                                                    CFStringRef _Nullable name,
                                                    CFMessagePortCallBack _Nullable callout,
                                                    CFMessagePortContext* _Nullable context,
                                                    Boolean* _Nullable shouldFreeInfo);
CFMessagePortRef _Nullable CFMessagePortCreateRemote(CFAllocatorRef _Nullable allocator,
                                                     CFStringRef _Nullable name);

// corefoundation/cfmessageportcreaterunloopsource(_:_:_:), cfmessageportinvalidate(_:)
CFRunLoopSourceRef _Nullable CFMessagePortCreateRunLoopSource(CFAllocatorRef _Nullable allocator,
                                                              CFMessagePortRef local,
                                                              CFIndex order);
void CFMessagePortInvalidate(CFMessagePortRef ms);

// corefoundation/cfmessageportsendrequest(_:_:_:_:_:_:_:), 1561514-cfmessageportsendrequest-error-c
enum : SInt32 {
    kCFMessagePortSuccess = 0,
    kCFMessagePortSendTimeout = -1,
    kCFMessagePortReceiveTimeout = -2,
    kCFMessagePortIsInvalid = -3,
    kCFMessagePortTransportError = -4,
    kCFMessagePortBecameInvalidError = -5,
};
SInt32 CFMessagePortSendRequest(CFMessagePortRef remote, SInt32 msgid, CFDataRef _Nullable data,
                                CFTimeInterval sendTimeout, CFTimeInterval rcvTimeout,
                                CFStringRef _Nullable replyMode,
                                CFDataRef _Nullable* _Nullable returnData);

} // extern "C"
QUILLET_ASSUME_NONNULL_END
