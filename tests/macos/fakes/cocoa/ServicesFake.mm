#include "macos/fakes/cocoa/ServicesFake.h"

#include "macos/fakes/cocoa/Objects.hh"

#include <AppKit/AppKit.h>
#include <ServiceManagement/ServiceManagement.h>

using cocoaFake::services;
using cocoaFake::ShownAlert;
using cocoaFake::stateOf;

namespace {

BOOL answer(NSError** error) {
    if (!services().loginItem.error) {
        return YES;
    }
    if (error != nullptr) {
        *error = [NSError
            errorWithDomain:@"SMAppServiceErrorDomain"
                       code:1
                   userInfo:[NSDictionary dictionaryWithObject:platform::toNSString(
                                                                   *services().loginItem.error)
                                                        forKey:NSLocalizedDescriptionKey]];
    }
    return NO;
}

} // namespace

@implementation SMAppService
+ (SMAppService*)mainAppService {
    static SMAppService* const service = [[SMAppService alloc] init];
    return service;
}
- (SMAppServiceStatus)status {
    return static_cast<SMAppServiceStatus>(services().loginItem.status);
}
- (BOOL)registerAndReturnError:(NSError**)error {
    services().loginItem.calls.emplace_back("register");
    return answer(error);
}
- (BOOL)unregisterAndReturnError:(NSError**)error {
    services().loginItem.calls.emplace_back("unregister");
    return answer(error);
}
@end

@implementation NSAlert
COUNTED(ShownAlert)
- (void)setMessageText:(NSString*)text {
    stateOf<ShownAlert>(self).messageText = platform::toQString(text);
}
- (void)setInformativeText:(NSString*)text {
    stateOf<ShownAlert>(self).informativeText = platform::toQString(text);
}
RECORDS(setAlertStyle, NSAlertStyle, ShownAlert, style)
- (NSButton*)addButtonWithTitle:(NSString*)title {
    stateOf<ShownAlert>(self).buttons.push_back(platform::toQString(title));
    return nil;
}
- (NSModalResponse)runModal {
    stateOf<ShownAlert>(self).afterComingForward = !cocoaFake::appKit().forward.empty();
    services().alerts.push_back(stateOf<ShownAlert>(self));
    return services().alertAnswer;
}
@end

/// The updater's controller as its framework would bring it.
@interface SPUStandardUpdaterController : NSObject
@end
@implementation SPUStandardUpdaterController
- (id)initWithStartingUpdater:(BOOL)starting
              updaterDelegate:(id)updaterDelegate
           userDriverDelegate:(id)userDriverDelegate {
    self = [super init];
    cocoaFake::born();
    const bool bare = !starting && updaterDelegate == nil && userDriverDelegate == nil;
    services().updater.emplace_back(bare ? "made" : "made with something");
    return self;
}
- (void)dealloc {
    cocoaFake::died();
    [super dealloc];
}
- (void)startUpdater {
    services().updater.emplace_back("start");
}
- (void)checkForUpdates:(id)sender {
    services().updater.emplace_back(sender == nil ? "check" : "check for a sender");
}
@end

/// The program's bundle as a Mac has it, where GNUstep has a tool's folder.
@implementation NSBundle (Fake)
- (NSString*)privateFrameworksPath {
    return services().frameworks ? platform::toNSString(*services().frameworks) : nil;
}
- (BOOL)load {
    services().updater.emplace_back(
        "load " + platform::toQString([[self bundlePath] lastPathComponent]).toStdString());
    return services().frameworkLoads;
}
@end

@implementation NSProcessInfo (LaterThanHere)
- (NSOperatingSystemVersion)operatingSystemVersion {
    return {14, 6, 1};
}
- (id)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason {
    services().activities.emplace_back(options, platform::toQString(reason));
    return [[[NSObject alloc] init] autorelease];
}
@end

namespace cocoaFake {

Services& services() {
    static Services state;
    return state;
}

void clearUserDefaults() {
    NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
    [defaults removePersistentDomainForName:[[NSProcessInfo processInfo] processName]];
}

void storeInOtherForms() {
    NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
    [defaults setObject:[NSDate date] forKey:@"date"];
    [defaults setObject:[NSDictionary dictionaryWithObject:@"a" forKey:@"b"] forKey:@"dictionary"];
    [defaults setObject:[NSArray arrayWithObjects:@"a", [NSNumber numberWithInt:1], nil]
                 forKey:@"mixed array"];
    [defaults setObject:[NSNumber numberWithUnsignedChar:1] forKey:@"byte"];
    [defaults setObject:[NSNumber numberWithFloat:0.5F] forKey:@"float"];
}

} // namespace cocoaFake
