#include "platform/macos/MacWindowServer.h"

#include "platform/macos/InactiveHover.h"
#include "platform/macos/NativeWindow.h"
#include "platform/qt/ToolkitGeometry.h"

#include <QWidget>

namespace platform {

namespace {

bool isFloating(const QWidget& window) {
    return window.windowFlags().testFlag(Qt::FramelessWindowHint);
}

void show(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    if (isFloating(window)) {
        nativeWindow::makeFloating(window.winId());
        nativeWindow::followPointer(window.winId(),
                                    {inactiveHover::pointerMoved, inactiveHover::pointerLeft});
    }
}

} // namespace

void MacWindowServer::makeFloating(QWidget& window, KeyboardFocus keyboard) {
    // An ordinary window: as a panel or a tool the toolkit would change its level when the program
    // is activated or deactivated.
    Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint;
    window.setAttribute(Qt::WA_TranslucentBackground);
    switch (keyboard) {
    case KeyboardFocus::Never:
        flags |= Qt::WindowDoesNotAcceptFocus;
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

void MacWindowServer::setFrame(QWidget& window, const Rect& frame) {
    setToolkitFrame(window, frame);
}

Rect MacWindowServer::frame(const QWidget& window) {
    return fromToolkit(window.frameGeometry());
}

Rect MacWindowServer::frameOnScreen(const QWidget& part) {
    return platform::frameOnScreen(part);
}

void MacWindowServer::orderFront(QWidget& window) {
    show(window);
    nativeWindow::orderFront(window.winId());
}

void MacWindowServer::orderOut(QWidget& window) {
    // The system does not say that the pointer left a window that vanishes under it.
    if (window.windowHandle() != nullptr) {
        inactiveHover::pointerLeft(window.winId());
    }
    window.hide();
}

void MacWindowServer::bringToFront(QWidget& window, const ActivationToken&) {
    show(window);
    nativeWindow::bringToFront(window.winId());
}

void MacWindowServer::setMaterial(const QWidget& part, const WindowMaterial& material) {
    QWidget& window = *part.window();
    const QPoint topLeft = part.mapTo(&window, QPoint(0, 0));
    const Rect frame{double(topLeft.x()), double(window.height() - topLeft.y() - part.height()),
                     double(part.width()), double(part.height())};
    nativeWindow::setMaterial(window.winId(), frame, material);
}

void MacWindowServer::becomeAccessory() {
    nativeWindow::becomeAccessory();
}

} // namespace platform
