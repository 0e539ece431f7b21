#include "platform/macos/AppKitAlerts.h"

#include "platform/macos/CocoaValues.hh"
#include "platform/macos/Strong.hh"

#include <AppKit/AppKit.h>

namespace platform {

namespace {

static_assert(Alerts::firstButtonReturn == NSAlertFirstButtonReturn);

NSAlertStyle toStyle(AlertStyle style) {
    switch (style) {
    case AlertStyle::Warning:
        return NSAlertStyleWarning;
    case AlertStyle::Informational:
        break;
    }
    return NSAlertStyleInformational;
}

} // namespace

int AppKitAlerts::runModal(const Alert& alert) {
    @autoreleasepool {
        const auto native = Strong<NSAlert*>::adopt([[NSAlert alloc] init]);
        native.get().messageText = toNSString(alert.messageText);
        native.get().informativeText = toNSString(alert.informativeText);
        native.get().alertStyle = toStyle(alert.style);
        for (const auto& title : alert.buttons) {
            [native.get() addButtonWithTitle:toNSString(title)];
        }
        // An accessory's alert would open behind the active application.
        [[NSApplication sharedApplication] activateIgnoringOtherApps:YES];
        return static_cast<int>([native.get() runModal]);
    }
}

} // namespace platform
