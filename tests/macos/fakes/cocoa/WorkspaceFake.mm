#include "macos/fakes/cocoa/Objects.hh"

#include <AppKit/AppKit.h>

using cocoaFake::appKit;
using cocoaFake::Application;
using cocoaFake::stateOf;

namespace {

NSString* orNil(const std::optional<QString>& text) {
    return text ? platform::toNSString(*text) : nil;
}

NSURL* fileOrNil(const std::optional<QString>& path) {
    return path ? [NSURL fileURLWithPath:platform::toNSString(*path)] : nil;
}

NSRunningApplication* made(const Application& application) {
    NSRunningApplication* const object = [[[NSRunningApplication alloc] init] autorelease];
    stateOf<Application>(object) = application;
    return object;
}

NSRunningApplication* running(int process) {
    for (const auto& application : appKit().running) {
        if (application.processIdentifier == process) {
            return made(application);
        }
    }
    return nil;
}

} // namespace

@implementation NSRunningApplication
+ (id)runningApplicationWithProcessIdentifier:(pid_t)pid {
    return running(pid);
}
COUNTED(Application)
ANSWERS(pid_t, processIdentifier, Application, processIdentifier)
- (NSString*)bundleIdentifier {
    return orNil(stateOf<Application>(self).bundleIdentifier);
}
- (NSString*)localizedName {
    return orNil(stateOf<Application>(self).localizedName);
}
- (NSURL*)bundleURL {
    return fileOrNil(stateOf<Application>(self).bundlePath);
}
- (NSURL*)executableURL {
    return fileOrNil(stateOf<Application>(self).executablePath);
}
- (NSApplicationActivationPolicy)activationPolicy {
    return static_cast<NSApplicationActivationPolicy>(stateOf<Application>(self).activationPolicy);
}
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options {
    appKit().activations.emplace_back(self.processIdentifier, options);
    return YES;
}
@end

@implementation NSWorkspace
+ (NSWorkspace*)sharedWorkspace {
    static NSWorkspace* const shared = [[NSWorkspace alloc] init];
    return shared;
}
- (NSRunningApplication*)frontmostApplication {
    return appKit().frontmost ? running(*appKit().frontmost) : nil;
}
- (NSArray*)runningApplications {
    NSMutableArray* const all = [NSMutableArray array];
    for (const auto& application : appKit().running) {
        [all addObject:made(application)];
    }
    return all;
}
- (BOOL)openURL:(NSURL*)url {
    appKit().openedUrls.push_back(platform::toQString([url absoluteString]));
    return appKit().opensUrls;
}
@end
