#include "platform/Platform.h"

#include "platform/macos/AppKitAlerts.h"
#include "platform/macos/AppKitColorPanel.h"
#include "platform/macos/AppKitScreens.h"
#include "platform/macos/AppKitWorkspace.h"
#include "platform/macos/ApplicationMenu.h"
#include "platform/macos/AxAccessibility.h"
#include "platform/macos/BundleSystemInfo.h"
#include "platform/macos/BundledUpdater.h"
#include "platform/macos/CGEventKeyboardEvents.h"
#include "platform/macos/MacScreenCapture.h"
#include "platform/macos/MacWindowServer.h"
#include "platform/macos/MessagePortProgramInstance.h"
#include "platform/macos/NSBundleApplicationBundles.h"
#include "platform/macos/NSEventMonitors.h"
#include "platform/macos/NSUserDefaultsStore.h"
#include "platform/macos/ServiceLoginItem.h"
#include "platform/macos/SystemSymbols.h"
#include "platform/macos/TrayStatusItem.h"
#include "platform/macos/WorkspaceApplicationIcons.h"
#include "platform/qt/QtKeyPresses.h"
#include "platform/qt/QtRunLoop.h"

#include <QKeyEvent>

#include <csignal>
#include <limits>
#include <utility>

namespace platform {

namespace {

/// The toolkit hands on the system's own code for the key's position. It is 0 for the A position,
/// and nothing tells that from an event that a program made up.
std::optional<KeyCode> positionOf(const QKeyEvent& event) {
    const quint32 code = event.nativeVirtualKey();
    return code <= std::numeric_limits<KeyCode>::max() ? std::optional(static_cast<KeyCode>(code))
                                                       : std::nullopt;
}

} // namespace

std::optional<QString> prepareProcess() {
    // Whoever reads our log lines may go away; that must not end the program.
    std::signal(SIGPIPE, SIG_IGN);
    // The toolkit would come to the front when it starts, and take the keyboard away from whoever
    // has it.
    qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1");
    return std::nullopt;
}

std::unique_ptr<ProgramInstance> makeProgramInstance() {
    return std::make_unique<MessagePortProgramInstance>();
}

std::unique_ptr<Platform> makePlatform(std::unique_ptr<ProgramInstance> programInstance) {
    auto platform = std::make_unique<Platform>();
    // It comes from makeProgramInstance().
    auto& instance = static_cast<MessagePortProgramInstance&>(*programInstance);
    platform->programInstance = std::move(programInstance);
    platform->foundation = std::make_shared<ApplicationMenu>([&instance] {
        instance.accept({InstanceRequest::Kind::Settings, {}});
    });
    platform->runLoop = std::make_unique<QtRunLoop>();
    platform->systemInfo = std::make_unique<BundleSystemInfo>();
    platform->userDefaults = std::make_unique<NSUserDefaultsStore>();
    platform->loginItem = std::make_unique<ServiceLoginItem>();
    platform->screens = std::make_unique<AppKitScreens>();
    platform->screenCapture = std::make_unique<MacScreenCapture>();
    platform->symbols = std::make_unique<SystemSymbols>();
    platform->windowServer = std::make_unique<MacWindowServer>();
    platform->workspace = std::make_unique<AppKitWorkspace>();
    platform->applicationBundles = std::make_unique<NSBundleApplicationBundles>();
    platform->applicationIcons = std::make_unique<WorkspaceApplicationIcons>();
    platform->accessibility = std::make_unique<AxAccessibility>();
    platform->keyboardEvents = std::make_unique<CGEventKeyboardEvents>();
    platform->keyPresses = std::make_unique<QtKeyPresses>(positionOf);
    platform->globalKeyMonitor = std::make_unique<NSEventKeyMonitor>();
    platform->pointerMonitor = std::make_unique<NSEventPointerMonitor>();
    platform->colorPanel = std::make_unique<AppKitColorPanel>();
    platform->statusItem = std::make_unique<TrayStatusItem>();
    platform->alerts = std::make_unique<AppKitAlerts>();
    platform->updater = std::make_unique<BundledUpdater>();
    return platform;
}

} // namespace platform
