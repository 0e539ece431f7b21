#include "platform/macos/AppKitWorkspace.h"

#include "platform/macos/CocoaValues.hh"

#include <AppKit/AppKit.h>

namespace platform {

namespace {

ActivationPolicy toPolicy(NSApplicationActivationPolicy policy) {
    switch (policy) {
    case NSApplicationActivationPolicyRegular:
        return ActivationPolicy::Regular;
    case NSApplicationActivationPolicyAccessory:
        return ActivationPolicy::Accessory;
    case NSApplicationActivationPolicyProhibited:
        break;
    }
    return ActivationPolicy::Prohibited;
}

/// The file whose icon is the application's: its bundle, or its program where it has none.
std::optional<IconReference> iconOf(NSRunningApplication* application) {
    NSURL* url = application.bundleURL != nil ? application.bundleURL : application.executableURL;
    const auto path = stringOrNothing(url.path);
    return path ? std::optional(IconReference{*path}) : std::nullopt;
}

RunningApplication toApplication(NSRunningApplication* application) {
    return {application.processIdentifier, stringOrNothing(application.bundleIdentifier),
            stringOrNothing(application.localizedName), toPolicy(application.activationPolicy),
            iconOf(application)};
}

} // namespace

std::optional<RunningApplication> AppKitWorkspace::frontmostApplication() {
    @autoreleasepool {
        NSRunningApplication* application = [NSWorkspace sharedWorkspace].frontmostApplication;
        return application == nil ? std::nullopt : std::optional(toApplication(application));
    }
}

std::vector<RunningApplication> AppKitWorkspace::runningApplications() {
    @autoreleasepool {
        std::vector<RunningApplication> result;
        for (NSRunningApplication* application in [NSWorkspace sharedWorkspace]
                 .runningApplications) {
            result.push_back(toApplication(application));
        }
        return result;
    }
}

void AppKitWorkspace::activate(const RunningApplication& application) {
    @autoreleasepool {
        [[NSRunningApplication
            runningApplicationWithProcessIdentifier:static_cast<pid_t>(
                                                        application.processIdentifier)]
            activateWithOptions:NSApplicationActivationOptions(0)];
    }
}

bool AppKitWorkspace::openUrl(const QUrl& url) {
    @autoreleasepool {
        NSURL* target = [NSURL URLWithString:toNSString(QString::fromLatin1(url.toEncoded()))];
        return target != nil && [[NSWorkspace sharedWorkspace] openURL:target];
    }
}

} // namespace platform
