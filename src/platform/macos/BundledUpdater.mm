#include "platform/macos/BundledUpdater.h"

#include "platform/macos/CocoaValues.hh"
#include "platform/macos/Strong.hh"

/// What is used of the class SPUStandardUpdaterController, which exists once the framework is
/// loaded.
@protocol QuilletUpdaterController <NSObject>
- (instancetype)initWithStartingUpdater:(BOOL)startUpdater
                        updaterDelegate:(id)updaterDelegate
                     userDriverDelegate:(id)userDriverDelegate;
- (void)startUpdater;
- (void)checkForUpdates:(id)sender;
@end

namespace platform {

namespace {

using UpdaterController = NSObject<QuilletUpdaterController>*;

UpdaterController makeController(NSString* framework) {
    NSString* frameworks = [NSBundle mainBundle].privateFrameworksPath;
    NSString* path = [frameworks stringByAppendingPathComponent:framework];
    if (path == nil || ![[NSBundle bundleWithPath:path] load]) {
        return nil;
    }
    Class type = NSClassFromString(@"SPUStandardUpdaterController");
    return [[type alloc] initWithStartingUpdater:NO updaterDelegate:nil userDriverDelegate:nil];
}

} // namespace

struct BundledUpdater::Controller {
    Strong<UpdaterController> object;
};

BundledUpdater::BundledUpdater(const char* framework) {
    @autoreleasepool {
        // In braces: older compilers make no aggregate of what stands in parentheses.
        controller_ = std::make_unique<Controller>(Controller{Strong<UpdaterController>::adopt(
            makeController(toNSString(QString::fromUtf8(framework))))});
    }
}

BundledUpdater::~BundledUpdater() = default;

void BundledUpdater::startUpdater() {
    [controller_->object.get() startUpdater];
}

void BundledUpdater::checkForUpdates() {
    [controller_->object.get() checkForUpdates:nil];
}

} // namespace platform
