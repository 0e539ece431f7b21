#pragma once

#include "../Declaring.h"

#include <cstdint>

QUILLET_ASSUME_NONNULL_BEGIN
extern "C" {

// corefoundation/boolean, cfindex, cftypeid, cftimeinterval, unichar, sint32, uint32
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

// corefoundation/cfretain(_:), cfrelease(_:), cfgettypeid(_:)
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

// corefoundation/cfstringgettypeid(), cfstringgetlength(_:), cfstringgetcharacters(_:_:_:)
CFTypeID CFStringGetTypeID();
CFIndex CFStringGetLength(CFStringRef theString);
void CFStringGetCharacters(CFStringRef theString, CFRange range, UniChar* buffer);

// corefoundation/cfstr: a constant of the program, which nobody releases
#ifdef __APPLE_CC__
#define CFSTR(text) (reinterpret_cast<CFStringRef>(__builtin___CFStringMakeConstantString(text)))
#else
CFStringRef __CFStringMakeConstantString(const char* text);
#define CFSTR(text) __CFStringMakeConstantString(text)
#endif

// corefoundation/cfdictionarykeycallbacks, cfdictionaryvaluecallbacks and their constants: opaque here
struct CFDictionaryKeyCallBacks;
struct CFDictionaryValueCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;

// corefoundation/cfdictionarycreate(_:_:_:_:_:_:)
CFDictionaryRef _Nullable CFDictionaryCreate(CFAllocatorRef _Nullable allocator,
                                   const void* _Nullable* _Nullable keys,
                                   const void* _Nullable* _Nullable values, CFIndex numValues,
                                   const CFDictionaryKeyCallBacks* _Nullable keyCallBacks,
                                   const CFDictionaryValueCallBacks* _Nullable valueCallBacks);

} // extern "C"
QUILLET_ASSUME_NONNULL_END
