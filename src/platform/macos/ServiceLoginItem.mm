#include "platform/macos/ServiceLoginItem.h"

#include "platform/macos/CocoaValues.hh"

#include <ServiceManagement/ServiceManagement.h>

namespace platform {

namespace {

LoginItem::Error toError(BOOL succeeded, NSError* error) {
    if (succeeded) {
        return std::nullopt;
    }
    return error == nil ? QStringLiteral("unknown error") : toQString(error.description);
}

} // namespace

LoginItemStatus ServiceLoginItem::status() {
    @autoreleasepool {
        switch ([SMAppService mainAppService].status) {
        case SMAppServiceStatusNotRegistered:
            return LoginItemStatus::NotRegistered;
        case SMAppServiceStatusEnabled:
            return LoginItemStatus::Enabled;
        case SMAppServiceStatusRequiresApproval:
            return LoginItemStatus::RequiresApproval;
        case SMAppServiceStatusNotFound:
            break;
        }
        return LoginItemStatus::NotFound;
    }
}

LoginItem::Error ServiceLoginItem::registerItem() {
    @autoreleasepool {
        NSError* error = nil;
        const BOOL succeeded = [[SMAppService mainAppService] registerAndReturnError:&error];
        return toError(succeeded, error);
    }
}

LoginItem::Error ServiceLoginItem::unregisterItem() {
    @autoreleasepool {
        NSError* error = nil;
        const BOOL succeeded = [[SMAppService mainAppService] unregisterAndReturnError:&error];
        return toError(succeeded, error);
    }
}

} // namespace platform
