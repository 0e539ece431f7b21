#include "platform/linux/x11/X11WindowServer.h"

#include "platform/linux/x11/StartupNotification.h"
#include "platform/linux/x11/WindowManager.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace platform {

namespace {

/// The toolkit's points have their origin at the top-left corner of the whole desktop, ours at the
/// bottom-left corner of the primary screen.
QRect primaryFrame() {
    const auto* primary = QGuiApplication::primaryScreen();
    return primary == nullptr ? QRect() : primary->geometry();
}

Rect fromToolkit(const QRect& frame) {
    const QRect primary = primaryFrame();
    return {double(frame.x() - primary.x()),
            double(primary.y() + primary.height() - frame.y() - frame.height()),
            double(frame.width()), double(frame.height())};
}

/// X counts pixels in 16 bits. A number is brought into the part of that range that leaves room
/// for a window's size at the largest ratio of all screens.
int wholePoint(double number) {
    constexpr double farthestPixel = 30000;
    const double farthest = farthestPixel / std::max(1.0, qGuiApp->devicePixelRatio());
    return std::isnan(number)
               ? 0
               : static_cast<int>(std::lround(std::clamp(number, -farthest, farthest)));
}

QRect toToolkit(const Rect& frame) {
    const QRect primary = primaryFrame();
    const int width = std::max(1, wholePoint(frame.width));
    const int height = std::max(1, wholePoint(frame.height));
    // Rounded once, as a whole: the same distance from a selection at every height.
    const double top = primary.y() + primary.height() - frame.y - frame.height;
    return {wholePoint(frame.x + primary.x()), wholePoint(top), width, height};
}

/// In gaps between screens, which points have and pixels do not, the toolkit would scale like the
/// screen on which the window was last.
QScreen* nearestScreen(const QPoint& point) {
    QScreen* best = nullptr;
    int bestDistance = std::numeric_limits<int>::max();
    for (auto* screen : QGuiApplication::screens()) {
        const QRect frame = screen->geometry();
        const QPoint inside(
            std::clamp(point.x(), frame.left(), std::max(frame.left(), frame.right())),
            std::clamp(point.y(), frame.top(), std::max(frame.top(), frame.bottom())));
        const int distance = (point - inside).manhattanLength();
        if (distance < bestDistance) {
            best = screen;
            bestDistance = distance;
        }
    }
    return best;
}

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
    const QRect geometry = toToolkit(frame);
    auto* screen = nearestScreen(geometry.center());
    if (screen != nullptr && screen != window.screen()) {
        window.setScreen(screen);
    }
    window.setGeometry(geometry);
}

Rect X11WindowServer::frame(const QWidget& window) {
    return fromToolkit(window.frameGeometry());
}

Rect X11WindowServer::frameOnScreen(const QWidget& part) {
    return fromToolkit(QRect(part.mapToGlobal(QPoint(0, 0)), part.size()));
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
