#include "platform/macos/InactiveHover.h"

#include "platform/qt/ToolkitGeometry.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace platform::inactiveHover {

namespace {

QWidget* shownWindow(WId view) {
    QWidget* const window = QWidget::find(view);
    return window != nullptr && window->windowHandle() != nullptr ? window : nullptr;
}

} // namespace

void pointerMoved(WId view, Point location) {
    QWidget* const window = shownWindow(view);
    if (window == nullptr) {
        return;
    }
    const QPointF onScreen = toToolkit(Rect{location.x, location.y, 0, 0}).topLeft();
    const QPointF inWindow = window->mapFromGlobal(onScreen);
    if (!window->underMouse()) {
        QEnterEvent enter(inWindow, inWindow, onScreen);
        QCoreApplication::sendEvent(window->windowHandle(), &enter);
    }
    QMouseEvent move(QEvent::MouseMove, inWindow, inWindow, onScreen, Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(window->windowHandle(), &move);
}

void pointerLeft(WId view) {
    if (QWidget* const window = shownWindow(view)) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(window->windowHandle(), &leave);
    }
}

} // namespace platform::inactiveHover
