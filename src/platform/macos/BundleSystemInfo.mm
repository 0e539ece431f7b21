#include "platform/macos/BundleSystemInfo.h"

#include "platform/macos/CocoaValues.hh"

namespace platform {

std::optional<QString> BundleSystemInfo::bundleIdentifier() {
    @autoreleasepool {
        return stringOrNothing([NSBundle mainBundle].bundleIdentifier);
    }
}

std::optional<QString> BundleSystemInfo::marketingVersion() {
    @autoreleasepool {
        return stringOrNothing(
            [[NSBundle mainBundle].infoDictionary objectForKey:@"CFBundleShortVersionString"]);
    }
}

std::optional<QString> BundleSystemInfo::buildNumber() {
    @autoreleasepool {
        return stringOrNothing(
            [[NSBundle mainBundle].infoDictionary objectForKey:@"CFBundleVersion"]);
    }
}

OperatingSystemVersion BundleSystemInfo::operatingSystemVersion() {
    @autoreleasepool {
        const NSOperatingSystemVersion version = [NSProcessInfo processInfo].operatingSystemVersion;
        return {static_cast<int>(version.majorVersion), static_cast<int>(version.minorVersion),
                static_cast<int>(version.patchVersion)};
    }
}

QString BundleSystemInfo::userName() {
    @autoreleasepool {
        return toQString(NSUserName());
    }
}

} // namespace platform
