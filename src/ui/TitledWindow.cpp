#include "ui/TitledWindow.h"

#include "platform/qt/ProgramIcon.h"
#include "ui/AccessibleRole.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

namespace ui {

TitledWindow::TitledWindow(const QString& title, QSize contentSize)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint) {
    setAccessibleRole(*this, QAccessible::Window);
    setWindowTitle(title);
    setWindowIcon(platform::programIcon());
    setFixedSize(contentSize);
    auto* close = new QShortcut(QKeySequence::Close, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

void TitledWindow::setContent(Element content) {
    auto widget = content.take();
    delete std::exchange(content_, widget.get());
    QWidget& shown = *widget;
    layout()->addWidget(widget.release());
    if (isActiveWindow()) {
        // The keyboard was with what is gone.
        shown.show();
        focusNextChild();
    }
}

bool TitledWindow::event(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        update();
    }
    return QWidget::event(event);
}

void TitledWindow::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), color({Color::WindowBackground}, palette()));
}

void TitledWindow::showEvent(QShowEvent* event) {
    if (!centred_) {
        centred_ = true;
        const QRect available = screen()->availableGeometry();
        move(available.center() - QPoint(width() / 2, height() / 2));
    }
    QWidget::showEvent(event);
    if (QGuiApplication::focusWindow() == windowHandle() && !isActiveWindow()) {
        // Opened again before the window system took the keyboard away: it will not give it again.
        QApplication::setActiveWindow(this);
    }
}

} // namespace ui
