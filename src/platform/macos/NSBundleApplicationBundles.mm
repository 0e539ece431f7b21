#include "platform/macos/NSBundleApplicationBundles.h"

#include "platform/macos/CocoaValues.hh"

namespace platform {

QStringList NSBundleApplicationBundles::folders() {
    @autoreleasepool {
        return {QStringLiteral("/Applications"), QStringLiteral("/System/Applications"),
                toQString(NSHomeDirectory()) + QStringLiteral("/Applications")};
    }
}

QStringList NSBundleApplicationBundles::entries(const QString& folder) {
    @autoreleasepool {
        QStringList result;
        for (NSString* name in
             [[NSFileManager defaultManager] contentsOfDirectoryAtPath:toNSString(folder)
                                                                 error:nullptr]) {
            result.push_back(toQString(name));
        }
        return result;
    }
}

QString NSBundleApplicationBundles::suffix() {
    return QStringLiteral(".app");
}

std::optional<ApplicationBundle> NSBundleApplicationBundles::bundle(const QString& path) {
    @autoreleasepool {
        NSBundle* bundle = [NSBundle bundleWithPath:toNSString(path)];
        if (bundle == nil) {
            return std::nullopt;
        }
        // The names as they are, not as the system's language has them.
        NSDictionary<NSString*, id>* information = bundle.infoDictionary;
        return ApplicationBundle{
            stringOrNothing(bundle.bundleIdentifier),
            stringOrNothing([information objectForKey:@"CFBundleName"]),
            stringOrNothing([information objectForKey:@"CFBundleDisplayName"])};
    }
}

std::optional<IconReference> NSBundleApplicationBundles::iconForFile(const QString& path) {
    return IconReference{path};
}

} // namespace platform
