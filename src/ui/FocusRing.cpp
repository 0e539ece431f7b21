#include "ui/FocusRing.h"

#include "ui/RoundedRectangle.h"
#include "ui/Theme.h"

#include <QFocusEvent>
#include <QPainter>
#include <QPointer>
#include <QWidget>

namespace ui {

namespace {

constexpr int reach = 4; // how far the ring stands out around a control, in points
constexpr double lineWidth = 3;

/// The nearest widget around a control that has room for the ring.
QWidget& hostOf(const QWidget& control, const QRect& ring) {
    QWidget* host = control.parentWidget();
    while (!host->isWindow() && host->parentWidget() != nullptr &&
           !host->rect().contains(QRect(control.mapTo(host, ring.topLeft()), ring.size()))) {
        host = host->parentWidget();
    }
    return *host;
}

} // namespace

class FocusRing::Overlay final : public QWidget {
public:
    Overlay(QWidget& host, double cornerRadius)
        : QWidget(&host)
        , cornerRadius_(cornerRadius) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double inset = reach - lineWidth / 2 - 0.5;
        const RoundedRectangle line{cornerRadius_ + reach - inset};
        painter.strokePath(line.path(QRectF(rect()).adjusted(inset, inset, -inset, -inset)),
                           QPen(color({Color::Accent, 0.55}, palette()), lineWidth));
    }

private:
    double cornerRadius_;
};

void FocusRing::attach(QWidget& control, std::function<Shape()> shape) {
    new FocusRing(control, std::move(shape));
}

FocusRing::FocusRing(QWidget& control, std::function<Shape()> shape)
    : QObject(&control)
    , control_(control)
    , shape_(std::move(shape)) {
    control.installEventFilter(this);
}

FocusRing::~FocusRing() = default;

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        if (watched == &control_) {
            gain(static_cast<QFocusEvent*>(event)->reason());
        }
        break;
    case QEvent::FocusOut:
    case QEvent::Hide:
        if (watched == &control_) {
            wasShown_ = overlay_ != nullptr;
            hide();
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
        place();
        break;
    default:
        break;
    }
    return false;
}

void FocusRing::gain(Qt::FocusReason reason) {
    switch (reason) {
    case Qt::MouseFocusReason:
    case Qt::PopupFocusReason:
        return;
    case Qt::ActiveWindowFocusReason:
        if (wasShown_) {
            show();
        }
        return;
    default:
        show();
    }
}

void FocusRing::show() {
    hide();
    const Shape shape = shape_();
    const QRect ring = shape.rect.toAlignedRect().adjusted(-reach, -reach, reach, reach);
    overlay_ = new Overlay(hostOf(control_, ring), shape.cornerRadius);
    // The host may be deleted before the control has lost its focus.
    connect(overlay_, &QObject::destroyed, this, [this] { overlay_ = nullptr; });
    watchAncestors(true);
    place();
    overlay_->show();
    overlay_->raise();
}

void FocusRing::place() {
    if (overlay_ == nullptr) {
        return;
    }
    const QRect ring = shape_().rect.toAlignedRect().adjusted(-reach, -reach, reach, reach);
    overlay_->setGeometry({control_.mapTo(overlay_->parentWidget(), ring.topLeft()), ring.size()});
}

void FocusRing::hide() {
    if (overlay_ == nullptr) {
        return;
    }
    watchAncestors(false);
    delete overlay_;
}

void FocusRing::watchAncestors(bool watched) {
    for (QWidget* widget = control_.parentWidget();
         widget != nullptr && widget != overlay_->parentWidget(); widget = widget->parentWidget()) {
        widget->removeEventFilter(this);
        if (watched) {
            widget->installEventFilter(this);
        }
    }
}

} // namespace ui
