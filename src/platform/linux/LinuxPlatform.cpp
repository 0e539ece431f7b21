#include "platform/Platform.h"

#include "core/Fatal.h"
#include "core/Log.h"
#include "platform/appcast/AppcastConfiguration.h"
#include "platform/appcast/AppcastUpdater.h"
#include "platform/appcast/HttpsFeedTransport.h"
#include "platform/linux/LinuxSystemInfo.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/ToolkitMessages.h"
#include "platform/linux/atspi/AtSpiAccessibility.h"
#include "platform/linux/freedesktop/ApplicationFolders.h"
#include "platform/linux/freedesktop/BusLoss.h"
#include "platform/linux/freedesktop/BusUserNotifications.h"
#include "platform/linux/freedesktop/DesktopApplicationBundles.h"
#include "platform/linux/freedesktop/DesktopColorScheme.h"
#include "platform/linux/freedesktop/DesktopEntryIndex.h"
#include "platform/linux/freedesktop/JsonUserDefaults.h"
#include "platform/linux/freedesktop/KeyFile.h"
#include "platform/linux/freedesktop/StatusNotifierHost.h"
#include "platform/linux/freedesktop/StatusNotifierStatusItem.h"
#include "platform/linux/freedesktop/XdgAutostartLoginItem.h"
#include "platform/linux/keyboard/VirtualKeyCodes.h"
#include "platform/linux/x11/EwmhWindows.h"
#include "platform/linux/x11/EwmhWorkspace.h"
#include "platform/linux/x11/X11Screens.h"
#include "platform/linux/x11/X11WindowServer.h"
#include "platform/linux/x11/XCompositeScreenCapture.h"
#include "platform/linux/x11/XEmbedTray.h"
#include "platform/linux/x11/XInputEvents.h"
#include "platform/linux/x11/XInputKeyMonitor.h"
#include "platform/linux/x11/XInputPointerMonitor.h"
#include "platform/linux/x11/XTestKeyboardEvents.h"
#include "platform/qt/DrawnSymbols.h"
#include "platform/qt/QtAlerts.h"
#include "platform/qt/QtColorPanel.h"
#include "platform/qt/QtKeyPresses.h"
#include "platform/qt/QtRunLoop.h"
#include "platform/qt/ThemeApplicationIcons.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QSessionManager>
#include <QWindow>

#include <csignal>
#include <cstdlib>
#include <limits>

namespace platform {

namespace {

/// What the mechanisms share. All of it outlives them.
struct Foundation {
    Foundation(std::shared_ptr<XcbConnection> x11, RunLoop& runLoop)
        : connection(std::move(x11))
        , desktopEntries(runLoop, ApplicationFolders::fromEnvironment().byPrecedence(),
                         localeSuffixes(messagesLocale()))
        , feedTransport(runLoop) {}

    TerminationSignals terminationSignals;
    QDBusConnection session = QDBusConnection::sessionBus();
    // Nothing of what the bus gave could be had again. The toolkit itself ends the program, with a
    // line, when the X server goes.
    BusLoss sessionLoss{session, [] {
                            core::log(u"the session bus is gone");
                            QCoreApplication::exit(EXIT_FAILURE);
                        }};
    std::shared_ptr<XcbConnection> connection;
    EwmhWindows windows{connection};
    DesktopEntryIndex desktopEntries;
    OwnKeyStrokes ownKeyStrokes;
    std::shared_ptr<XInputEvents> inputEvents = XInputEvents::create(*connection, ownKeyStrokes);
    StatusNotifierHost statusNotifierHost{session};
    XEmbedTray xembedTray{connection};
    BusUserNotifications notifications{session};
    HttpsFeedTransport feedTransport;
    DesktopColorScheme colorScheme{session};
};

/// Gives every window the class by which desktops find the program's desktop entry. The toolkit has
/// no call for it: it takes the application's name when the first native window is made, and keeps
/// it. The same name is what trays and screen readers call the program, so it is put back.
void setWindowClass(const QString& windowClass) {
    const QString name = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(windowClass);
    QWindow().create();
    QCoreApplication::setApplicationName(name);
}

/// The scan code of an event of the window system; none for one that a program made up.
std::optional<KeyCode> positionOf(const QKeyEvent& event) {
    const quint32 code = event.nativeScanCode();
    return code > 0 && code <= std::numeric_limits<ScanCode>::max()
               ? virtualKeyCode(static_cast<ScanCode>(code))
               : std::nullopt;
}

/// The program's own entry says whether it starts at login. A session manager that restored it as
/// well would start it a second time, and a second start opens the settings.
void declineSessionRestore() {
    QObject::connect(
        qGuiApp, &QGuiApplication::saveStateRequest, qGuiApp,
        [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); },
        Qt::DirectConnection);
}

void logWhatIsMissing(Foundation& foundation) {
    if (!foundation.session.isConnected()) {
        core::log(u"no session bus: selections cannot be read, a second start is not noticed, and "
                  u"only a tray of the older kind can show the menu");
    }
    if (!foundation.windows.activeWindow().hasWindowManager()) {
        core::log(u"no window manager: the window with the keyboard counts as the active one");
    }
    if (!foundation.inputEvents) {
        core::log(u"no XInput 2: the global shortcut is not seen, and a click elsewhere does not "
                  u"close the heading picker");
    }
    if (QGuiApplication::screens().isEmpty()) {
        core::log(u"no screen: the bar appears once there is one");
    }
}

} // namespace

std::optional<QString> prepareProcess() {
    // Whoever reads our log lines may go away; that must not end the program.
    std::signal(SIGPIPE, SIG_IGN);
    silenceAccessibilityBridge();
    if (!XcbDisplay::connect()) {
        const QString display = qEnvironmentVariable("DISPLAY");
        return display.isEmpty() ? QStringLiteral("no X server: DISPLAY is not set")
                                 : QStringLiteral("no X server answers at %1").arg(display);
    }
    // Under Wayland the toolkit would choose another system than this layer works on.
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    if (chosen.isEmpty() || chosen.startsWith("wayland")) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    return std::nullopt;
}

std::unique_ptr<Platform> makePlatform(std::unique_ptr<ProgramInstance> programInstance) {
    auto connection = XcbConnection::open();
    if (!connection) {
        core::fatal(u"the X server went away during the start");
    }
    setWindowClass(QStringLiteral("corvane-quillet"));
    declineSessionRestore();
    auto platform = std::make_unique<Platform>();
    platform->programInstance = std::move(programInstance);
    platform->runLoop = std::make_unique<QtRunLoop>();
    const auto foundation = std::make_shared<Foundation>(std::move(connection), *platform->runLoop);
    platform->foundation = foundation;
    Foundation& shared = *foundation;
    logWhatIsMissing(shared);

    platform->systemInfo = std::make_unique<LinuxSystemInfo>();
    platform->userDefaults = std::make_unique<JsonUserDefaults>(JsonUserDefaults::defaultPath());
    platform->loginItem = std::make_unique<XdgAutostartLoginItem>(
        XdgAutostartLoginItem::defaultPath(), QCoreApplication::applicationFilePath());
    platform->screens = std::make_unique<X11Screens>(shared.windows);
    platform->screenCapture = std::make_unique<XCompositeScreenCapture>();
    platform->symbols = std::make_unique<DrawnSymbols>();
    platform->windowServer = std::make_unique<X11WindowServer>(shared.connection);
    auto workspace = std::make_unique<EwmhWorkspace>(shared.windows, shared.desktopEntries,
                                                     *platform->systemInfo->bundleIdentifier());
    platform->keyboardEvents = std::make_unique<XTestKeyboardEvents>(
        *shared.connection, *platform->runLoop, shared.ownKeyStrokes,
        [&applications = *workspace] { return applications.keyTargetIsInFront(); });
    platform->workspace = std::move(workspace);
    platform->applicationBundles = std::make_unique<DesktopApplicationBundles>(
        ApplicationFolders::fromEnvironment(), localeSuffixes(messagesLocale()), currentDesktops());
    platform->applicationIcons = std::make_unique<ThemeApplicationIcons>();
    platform->accessibility = std::make_unique<AtSpiAccessibility>(shared.windows, shared.session);
    platform->keyPresses =
        std::make_unique<QtKeyPresses>([](const QKeyEvent& event) { return positionOf(event); });
    platform->globalKeyMonitor =
        std::make_unique<XInputKeyMonitor>(*shared.connection, shared.inputEvents, [] {
            return QGuiApplication::focusWindow() != nullptr;
        });
    platform->pointerMonitor = std::make_unique<XInputPointerMonitor>(
        *shared.connection, shared.inputEvents, [&windows = shared.windows](PixelPoint pixel) {
            return windows.pixelGeometry().globalPoint(pixel);
        });
    platform->colorPanel = std::make_unique<QtColorPanel>(*platform->windowServer);
    platform->statusItem = std::make_unique<StatusNotifierStatusItem>(
        *platform->runLoop, shared.statusNotifierHost, shared.xembedTray);
    platform->alerts = std::make_unique<QtAlerts>();
    platform->updater = std::make_unique<AppcastUpdater>(
        appcastConfiguration(*platform->systemInfo), *platform->runLoop, shared.feedTransport,
        *platform->workspace, shared.notifications);
    return platform;
}

} // namespace platform
