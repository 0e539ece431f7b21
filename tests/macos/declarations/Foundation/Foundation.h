#pragma once

#include "../Declaring.h"

#include <CoreGraphics/CoreGraphics.h>

QUILLET_ASSUME_NONNULL_BEGIN

// objectivec/bool, nsinteger, nsuinteger: the compiler says which of the two the processor has
#if __OBJC_BOOL_IS_BOOL
using BOOL = bool;
#else
using BOOL = signed char;
#endif
#define YES __objc_yes
#define NO __objc_no
// objectivec/nil-227m0: null as an object
#define nil nullptr
using NSInteger = long;
using NSUInteger = unsigned long;
using unichar = unsigned short;

// foundation/nstimeinterval, nsrect, nspoint, nssize, nsrange-c.struct
using NSTimeInterval = double;
using NSPoint = CGPoint;
using NSSize = CGSize;
using NSRect = CGRect;
struct NSRange {
    NSUInteger location;
    NSUInteger length;
};
inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
    return {location, length};
}
inline NSPoint NSMakePoint(CGFloat x, CGFloat y) {
    return {x, y};
}
inline NSSize NSMakeSize(CGFloat width, CGFloat height) {
    return {width, height};
}
inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}
extern "C" const NSRect NSZeroRect;

@class NSArray<ObjectType>, NSDictionary<KeyType, ObjectType>, NSError, NSString, NSURL;

// objectivec/nsobject-c.protocol
@protocol NSObject
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)respondsToSelector:(SEL)aSelector;
- (BOOL)isEqual:(nullable id)object;
@property(readonly, copy) NSString* description;
@end

// objectivec/nsobject-c.class
__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
- (instancetype)init;
+ (Class)class;
@end

// foundation/nsclassfromstring(_:)
extern "C" Class _Nullable NSClassFromString(NSString* aClassName);

// foundation/nsfastenumeration, nsfastenumerationstate
struct NSFastEnumerationState {
    unsigned long state;
    id _Nullable __unsafe_unretained* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
};
@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id _Nullable __unsafe_unretained[_Nonnull])buffer
                                    count:(NSUInteger)len;
@end

// foundation/nscopying
@protocol NSCopying
@end

// foundation/nsstring
@interface NSString : NSObject <NSCopying>
+ (instancetype)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
@property(readonly) NSUInteger length;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;
- (BOOL)isEqualToString:(NSString*)aString;
- (NSString*)stringByAppendingPathComponent:(NSString*)str;
@end

// foundation/nshomedirectory(), nsusername()
extern "C" NSString* NSHomeDirectory(void);
extern "C" NSString* NSUserName(void);

// foundation/nsnumber, nsvalue
@interface NSValue : NSObject <NSCopying>
@property(readonly) const char* objCType __attribute__((objc_returns_inner_pointer));
@end
enum NSComparisonResult : NSInteger { NSOrderedAscending = -1, NSOrderedSame, NSOrderedDescending };
@interface NSNumber : NSValue
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithLongLong:(long long)value;
+ (NSNumber*)numberWithUnsignedLongLong:(unsigned long long)value;
+ (NSNumber*)numberWithDouble:(double)value;
@property(readonly) BOOL boolValue;
@property(readonly) long long longLongValue;
@property(readonly) unsigned long long unsignedLongLongValue;
@property(readonly) double doubleValue;
- (NSComparisonResult)compare:(NSNumber*)otherNumber;
@end

// foundation/nsarray, nsmutablearray
@interface NSArray<__covariant ObjectType> : NSObject <NSCopying, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (ObjectType)objectAtIndex:(NSUInteger)index;
@end
@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
+ (instancetype)arrayWithCapacity:(NSUInteger)numItems;
- (void)addObject:(ObjectType)anObject;
@end

// foundation/nsdictionary
@interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSFastEnumeration>
+ (instancetype)dictionaryWithObject:(ObjectType)object forKey:(KeyType)key;
- (nullable ObjectType)objectForKey:(KeyType)aKey;
@end

// foundation/nserror
@interface NSError : NSObject <NSCopying>
@end

// foundation/nsurl
@interface NSURL : NSObject <NSCopying>
+ (nullable instancetype)URLWithString:(NSString*)URLString;
@property(nullable, readonly, copy) NSString* path;
@end

// foundation/bundle
@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
+ (nullable instancetype)bundleWithPath:(NSString*)path;
- (BOOL)load;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSString* privateFrameworksPath;
@property(nullable, readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
@end

// foundation/filemanager
@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
- (nullable NSArray<NSString*>*)contentsOfDirectoryAtPath:(NSString*)path
                                                    error:(NSError* _Nullable* _Nullable)error;
- (BOOL)fileExistsAtPath:(NSString*)path;
@end

// foundation/userdefaults
@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable id)objectForKey:(NSString*)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString*)defaultName;
@end

// foundation/processinfo, operatingsystemversion
struct NSOperatingSystemVersion {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
};
// foundation/processinfo/activityoptions
using NSActivityOptions = std::uint64_t;
enum : NSActivityOptions {
    NSActivityIdleSystemSleepDisabled = 1ULL << 20,
    NSActivityUserInitiated = 0x00FFFFFFULL | NSActivityIdleSystemSleepDisabled,
    NSActivityUserInitiatedAllowingIdleSystemSleep =
        NSActivityUserInitiated & ~NSActivityIdleSystemSleepDisabled,
};
@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly) NSOperatingSystemVersion operatingSystemVersion;
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason;
@end

QUILLET_ASSUME_NONNULL_END
