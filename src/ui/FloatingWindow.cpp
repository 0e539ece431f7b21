#include "ui/FloatingWindow.h"

#include "ui/CornerClip.h"
#include "ui/Theme.h"

#include <QBitmap>
#include <QPainter>

namespace ui {

namespace {

/// The pixels that are rather there than not.
QBitmap solidPart(const QImage& picture) {
    QImage mask(picture.size(), QImage::Format_MonoLSB);
    // Which of the two colours is which: without a table of its own a bitmap is turned over.
    mask.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    mask.fill(Qt::color0);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) >= 128) {
                mask.setPixel(x, y, Qt::color1);
            }
        }
    }
    return QBitmap::fromImage(mask);
}

} // namespace

FloatingWindow::FloatingWindow(platform::WindowServer& windowServer, Element contents,
                               RoundedRectangle shape, platform::KeyboardFocus keyboard)
    : windowServer_(windowServer)
    , contents_(*contents.take().release())
    , clip_(*new CornerClip(shape, *this)) {
    contents_.setParent(this);
    clip_.raise();
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_AlwaysShowToolTips); // the window need not be the active one
    windowServer_.makeFloating(*this, keyboard);
}

void FloatingWindow::setFrame(const platform::Rect& frame) {
    windowServer_.setFrame(*this, frame);
}

platform::Rect FloatingWindow::frame() const {
    return windowServer_.frame(*this);
}

void FloatingWindow::orderFront() {
    prepareToShow();
    windowServer_.orderFront(*this);
}

void FloatingWindow::makeKeyAndOrderFront() {
    prepareToShow();
    windowServer_.bringToFront(*this, {});
}

void FloatingWindow::prepareToShow() {
    // A compositor may have come or gone since the last time.
    if (const bool opaque = !windowServer_.hasTranslucency(); opaque || opaque_) {
        opaque ? takeShapeFromContents() : clearMask();
        setOpaque(opaque);
    }
}

void FloatingWindow::orderOut() {
    windowServer_.orderOut(*this);
}

void FloatingWindow::paintEvent(QPaintEvent*) {
    if (opaque_) {
        QPainter(this).fillRect(rect(), color({Color::WindowBackground}, palette()));
    }
}

void FloatingWindow::resizeEvent(QResizeEvent*) {
    contents_.setGeometry(rect());
    clip_.setGeometry(rect());
    if (opaque_) {
        takeShapeFromContents();
    }
}

void FloatingWindow::takeShapeFromContents() {
    const bool wasOpaque = opaque_;
    setOpaque(false);
    QImage picture(size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    render(&picture, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::IgnoreMask);
    setMask(solidPart(picture));
    setOpaque(wasOpaque);
}

void FloatingWindow::setOpaque(bool opaque) {
    opaque_ = opaque;
    clip_.setVisible(!opaque);
}

} // namespace ui
