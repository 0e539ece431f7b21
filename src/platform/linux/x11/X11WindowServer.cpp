#include "platform/linux/x11/X11WindowServer.h"

#include "platform/linux/x11/StartupNotification.h"
#include "platform/linux/x11/WindowManager.h"
#include "platform/qt/ToolkitGeometry.h"

#include <QGuiApplication>
#include <QWidget>

#include <string>
#include <utility>

namespace platform {

namespace {

/// Asks the window manager to bring a window forward. The toolkit's own request would carry the
/// time of the last event in one of its windows, from long ago for a program without windows, and
/// would be refused as an intrusion.
void activateAsUser(XcbConnection& connection, xcb_window_t window, xcb_timestamp_t time) {
    // Over the toolkit's connection: the manager must have seen the window appear before.
    const auto* toolkit = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (toolkit == nullptr) {
        return;
    }
    requestActivation(connection, toolkit->connection(), window, time);
}

} // namespace

X11WindowServer::X11WindowServer(std::shared_ptr<XcbConnection> connection)
    : connection_(std::move(connection)) {}

void X11WindowServer::makeFloating(QWidget& window, KeyboardFocus keyboard) {
    Qt::WindowFlags flags = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    window.setAttribute(Qt::WA_TranslucentBackground);
    switch (keyboard) {
    case KeyboardFocus::Never:
        flags |= Qt::WindowDoesNotAcceptFocus | Qt::X11BypassWindowManagerHint;
        window.setAttribute(Qt::WA_ShowWithoutActivating);
        // The window is never active, and tool tips are shown in active windows only.
        window.setAttribute(Qt::WA_AlwaysShowToolTips);
        window.setFocusPolicy(Qt::NoFocus);
        for (auto* child : window.findChildren<QWidget*>()) {
            child->setFocusPolicy(Qt::NoFocus);
        }
        break;
    case KeyboardFocus::WhenInFront:
        break;
    }
    window.setWindowFlags(flags);
}

void X11WindowServer::setFrame(QWidget& window, const Rect& frame) {
    // The native window is left to be made when the window is shown: made before its first
    // geometry is known, it would appear somewhere else.
    setToolkitFrame(window, frame);
}

Rect X11WindowServer::frame(const QWidget& window) {
    return fromToolkit(window.frameGeometry());
}

Rect X11WindowServer::frameOnScreen(const QWidget& part) {
    return platform::frameOnScreen(part);
}

void X11WindowServer::orderFront(QWidget& window) {
    window.show();
    window.raise();
}

void X11WindowServer::orderOut(QWidget& window) {
    window.hide();
}

void X11WindowServer::bringToFront(QWidget& window, const ActivationToken& token) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    if (hasWindowManager()) {
        const auto time = startupTime(token.startupId).value_or(connection_->serverTime());
        activateAsUser(*connection_, static_cast<xcb_window_t>(window.winId()), time);
    } else {
        window.activateWindow();
    }
    if (!token.startupId.isEmpty()) {
        sendStartupCompleted(*connection_, static_cast<xcb_window_t>(window.winId()),
                             token.startupId);
    }
}

bool X11WindowServer::hasWindowManager() {
    const auto sign = windowManagerSign(*connection_);
    return sign && isLivingSign(*connection_, *sign);
}

bool X11WindowServer::hasTranslucency() {
    const std::string manager = "_NET_WM_CM_S" + std::to_string(connection_->screenNumber());
    const auto owner = connection_->reply<xcb_get_selection_owner_reply_t>(
        xcb_get_selection_owner(connection_->get(), connection_->atom(manager.c_str())));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

void X11WindowServer::becomeAccessory() {
    // There is no icon to take away: task bars list windows, not processes, and this program's
    // floating windows are not managed. Its ordinary windows are listed while they are open.
}

} // namespace platform
