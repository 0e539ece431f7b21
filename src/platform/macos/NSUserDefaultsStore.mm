#include "platform/macos/NSUserDefaultsStore.h"

#include "platform/macos/CocoaValues.hh"
#include "platform/macos/PropertyList.hh"

namespace platform {

std::optional<DefaultsValue> NSUserDefaultsStore::object(const QString& key) const {
    @autoreleasepool {
        return fromPropertyList(
            [[NSUserDefaults standardUserDefaults] objectForKey:toNSString(key)]);
    }
}

void NSUserDefaultsStore::set(const QString& key, const DefaultsValue& value) {
    @autoreleasepool {
        [[NSUserDefaults standardUserDefaults] setObject:toPropertyList(value)
                                                  forKey:toNSString(key)];
    }
}

} // namespace platform
