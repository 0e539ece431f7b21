// GNUstep's Foundation, with what it does not have yet; the fakes answer it.
#pragma once

#include_next <Foundation/Foundation.h>

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo (LaterThanHere)
@property(readonly) NSOperatingSystemVersion operatingSystemVersion;
@end
