#include "ui/SegmentStrip.h"

#include "platform/Platform.h"
#include "ui/FocusRing.h"
#include "ui/RoundedRectangle.h"
#include "ui/Theme.h"

#include <QMouseEvent>
#include <QPainter>

namespace ui {

namespace {

constexpr QSize smallestSegment{84, 44};
constexpr int margin = 14;
constexpr double inset = 2; // of the chosen segment's face
constexpr RoundedRectangle strip{9};
constexpr RoundedRectangle face{7};

QImage tintedSymbol(const QString& name, double ratio, const QColor& colour) {
    QImage image = platform::current().symbols->mask(name, {16, Weight::Medium}, ratio);
    if (image.isNull()) {
        return image;
    }
    image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF({0, 0}, image.deviceIndependentSize()), colour);
    return image;
}

} // namespace

SegmentStrip::SegmentStrip() {
    setFont(ui::font(11, Weight::Medium));
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    FocusRing::attach(*this, [this] {
        return FocusRing::Shape{QRectF(rect()), strip.cornerRadius};
    });
}

void SegmentStrip::addSegment(const QString& symbol, const QString& title) {
    symbols_.append(symbol);
    addTab(title);
}

QSize SegmentStrip::sizeHint() const {
    QSize size(0, smallestSegment.height());
    for (int i = 0; i < count(); ++i) {
        size.rwidth() += tabSizeHint(i).width();
    }
    return size;
}

QSize SegmentStrip::tabSizeHint(int index) const {
    const int text = fontMetrics().horizontalAdvance(tabText(index)) + 2 * margin;
    return {std::max(smallestSegment.width(), text), smallestSegment.height()};
}

void SegmentStrip::mouseMoveEvent(QMouseEvent* event) {
    hovered_ = tabAt(event->pos());
    update();
    QTabBar::mouseMoveEvent(event);
}

void SegmentStrip::leaveEvent(QEvent* event) {
    hovered_ = -1;
    update();
    QTabBar::leaveEvent(event);
}

void SegmentStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // In the dark the chosen segment is the lighter one, and must stand out.
    const double share = isDark(palette()) ? 0.3 : 0.6;
    painter.fillPath(strip.path(rect()), color({Color::ControlTrack, share}, palette()));
    for (int i = 0; i < count(); ++i) {
        paintSegment(painter, i);
    }
}

void SegmentStrip::paintSegment(QPainter& painter, int index) const {
    const QRect segment = tabRect(index);
    const QRectF raised = QRectF(segment).adjusted(inset, inset, -inset, -inset);
    const bool chosen = index == currentIndex();
    if (chosen) {
        painter.fillPath(face.path(raised.translated(0, 0.75)), QColor(0, 0, 0, 30));
        painter.fillPath(face.path(raised), color({Color::ControlFace}, palette()));
    } else if (index == hovered_) {
        painter.fillPath(face.path(raised), color({Color::Label, 0.06}, palette()));
    }
    const QColor ink = color({chosen ? Color::Accent : Color::Label}, palette());
    const QImage symbol = tintedSymbol(symbols_.value(index), devicePixelRatioF(), ink);
    const QSizeF size = symbol.deviceIndependentSize();
    painter.drawImage(QPointF(std::round(segment.center().x() + 0.5 - size.width() / 2),
                              std::round(15.0 - size.height() / 2)),
                      symbol);
    painter.setPen(color({Color::Label}, palette()));
    painter.drawText(segment.adjusted(0, 25, 0, -4), Qt::AlignCenter | Qt::TextSingleLine,
                     tabText(index));
}

} // namespace ui
