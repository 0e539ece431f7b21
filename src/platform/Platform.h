#pragma once

#include "platform/Accessibility.h"
#include "platform/Alerts.h"
#include "platform/ApplicationBundles.h"
#include "platform/ApplicationIcons.h"
#include "platform/ColorPanel.h"
#include "platform/GlobalKeyMonitor.h"
#include "platform/KeyPresses.h"
#include "platform/KeyboardEvents.h"
#include "platform/LoginItem.h"
#include "platform/PointerMonitor.h"
#include "platform/ProgramInstance.h"
#include "platform/RunLoop.h"
#include "platform/ScreenCapture.h"
#include "platform/Screens.h"
#include "platform/StatusItem.h"
#include "platform/Symbols.h"
#include "platform/SystemInfo.h"
#include "platform/Updater.h"
#include "platform/UserDefaults.h"
#include "platform/WindowServer.h"
#include "platform/Workspace.h"

#include <memory>

namespace platform {

/// Everything that the program asks of the system it runs on. Each member is set.
struct Platform {
    /// What the members below share and must outlive them: connections, caches.
    std::shared_ptr<void> foundation;

    std::unique_ptr<ProgramInstance> programInstance;
    std::unique_ptr<SystemInfo> systemInfo;
    std::unique_ptr<UserDefaults> userDefaults;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<Screens> screens;
    std::unique_ptr<ScreenCapture> screenCapture;
    std::unique_ptr<Symbols> symbols;
    std::unique_ptr<WindowServer> windowServer;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<ApplicationBundles> applicationBundles;
    std::unique_ptr<ApplicationIcons> applicationIcons;
    std::unique_ptr<Accessibility> accessibility;
    std::unique_ptr<KeyboardEvents> keyboardEvents;
    std::unique_ptr<KeyPresses> keyPresses;
    std::unique_ptr<GlobalKeyMonitor> globalKeyMonitor;
    std::unique_ptr<PointerMonitor> pointerMonitor;
    std::unique_ptr<ColorPanel> colorPanel;
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<Alerts> alerts;
    std::unique_ptr<Updater> updater;

    /// The first to go: it waits for background work, which uses the others.
    std::unique_ptr<RunLoop> runLoop;
};

/// What must happen before the application object is made. Answers, as one line of English, why the
/// program cannot run here; empty when it can.
[[nodiscard]] std::optional<QString> prepareProcess();

/// Puts the system's own implementations together. Needs the application object, and the instance
/// that claimed to be the program; main thread.
std::unique_ptr<Platform> makePlatform(std::unique_ptr<ProgramInstance> programInstance);

/// The platform that the process runs on. A programming error when none is installed.
Platform& current();

/// Makes a platform the current one for as long as this object lives.
class CurrentPlatform {
public:
    explicit CurrentPlatform(Platform& platform);
    ~CurrentPlatform();
    CurrentPlatform(const CurrentPlatform&) = delete;
    CurrentPlatform& operator=(const CurrentPlatform&) = delete;

private:
    Platform* previous_;
};

} // namespace platform
