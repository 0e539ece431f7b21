#pragma once

#include <Foundation/Foundation.h>

#include "../Declaring.h"

#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wpedantic"

QUILLET_ASSUME_NONNULL_BEGIN

// servicemanagement/smappservice/status-swift.enum
enum SMAppServiceStatus : NSInteger {
    SMAppServiceStatusNotRegistered,
    SMAppServiceStatusEnabled,
    SMAppServiceStatusRequiresApproval,
    SMAppServiceStatusNotFound,
};

// servicemanagement/smappservice
QUILLET_MACOS(13.0)
@interface SMAppService : NSObject
@property(class, readonly) SMAppService* mainAppService;
@property(readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError* _Nullable* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable* _Nullable)error;
@end

QUILLET_ASSUME_NONNULL_END
#pragma clang diagnostic pop
