#include "slash/views/KeyboardHandlingView.h"

#include <QKeyEvent>

namespace slash {

namespace {

// Virtual key codes.
constexpr platform::KeyCode returnKey = 36;
constexpr platform::KeyCode escape = 53;
constexpr platform::KeyCode downArrow = 125;
constexpr platform::KeyCode upArrow = 126;

} // namespace

KeyboardHandlingView::KeyboardHandlingView(platform::KeyPresses& keyPresses)
    : keyPresses_(keyPresses) {
    setFocusPolicy(Qt::StrongFocus);
}

bool KeyboardHandlingView::keyDown(const QKeyEvent& event) {
    // The callback is copied, since it may end this view and itself with it.
    const auto call = [](std::function<void()> callback) {
        if (callback) {
            callback();
        }
        return true;
    };
    switch (keyPresses_.keyCode(event).value_or(0)) {
    case upArrow:
        return call(onUpArrow);
    case downArrow:
        return call(onDownArrow);
    case returnKey:
        return call(onReturn);
    case escape:
        return call(onEscape);
    default:
        return false;
    }
}

void KeyboardHandlingView::keyPressEvent(QKeyEvent* event) {
    if (!keyDown(*event)) {
        QWidget::keyPressEvent(event);
    }
}

} // namespace slash
