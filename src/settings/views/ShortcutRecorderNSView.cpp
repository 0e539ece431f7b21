#include "settings/views/ShortcutRecorderNSView.h"

#include "settings/ShortcutNames.h"

#include <QKeyEvent>

namespace settings {

namespace {

bool isModifierKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

} // namespace

ShortcutRecorderNSView::ShortcutRecorderNSView(platform::KeyPresses& keyPresses)
    : keyPresses_(keyPresses) {
    setFixedSize(0, 0);
    setFocusPolicy(Qt::NoFocus);
}

bool ShortcutRecorderNSView::event(QEvent* event) {
    if (isRecording) {
        // Else a key that the window has as a shortcut would not get here, and Tab would move the
        // focus.
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept();
            return true;
        }
        if (event->type() == QEvent::KeyPress) {
            keyPressEvent(static_cast<QKeyEvent*>(event));
            return true;
        }
    }
    return QWidget::event(event);
}

void ShortcutRecorderNSView::keyPressEvent(QKeyEvent* event) {
    if (isModifierKey(*event)) {
        return;
    }
    if (!isRecording) {
        QWidget::keyPressEvent(event);
        return;
    }
    const auto modifiers = recordableModifiers(keyPresses_.modifierFlags(*event));
    const auto keyCode = keyPresses_.keyCode(*event);
    if (modifiers && keyCode && onKeyRecorded) {
        onKeyRecorded(*keyCode, *modifiers);
    }
}

void ShortcutRecorderNSView::keyReleaseEvent(QKeyEvent* event) {
    if (!isModifierKey(*event)) {
        QWidget::keyReleaseEvent(event);
    }
}

void ShortcutRecorderNSView::showEvent(QShowEvent*) {
    if (isRecording) {
        setFocus();
    }
}

} // namespace settings
