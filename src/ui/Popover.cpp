#include "ui/Popover.h"

#include "ui/PopoverFrame.h"

#include <QEvent>

namespace ui {

Popover::Popover(QWidget& anchor, Binding<bool> isPresented, std::function<Element()> contents)
    : QObject(&anchor)
    , platform_(platform::current())
    , anchor_(anchor)
    , isPresented_(std::move(isPresented))
    , contents_(std::move(contents))
    , presentation_(isPresented_->observe([this](const bool& presented) { update(presented); })) {
    anchor.installEventFilter(this);
}

bool Popover::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
        if (watched == &anchor_) {
            update(isPresented_->get());
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (dismissal_) {
            place();
            raiseAfterAnchor();
        }
        break;
    default:
        break;
    }
    return false;
}

void Popover::update(bool presented) {
    const bool wanted = presented && anchor_.isVisible();
    const bool shown = static_cast<bool>(dismissal_);
    if (wanted && !shown) {
        present();
    } else if (!wanted && shown) {
        dismiss();
    }
}

void Popover::present() {
    if (!window_) {
        auto frame = std::make_unique<PopoverFrame>(contents_());
        frame_ = frame.get();
        window_ = std::make_unique<FloatingWindow>(*platform_.windowServer,
                                                   Element(std::move(frame)), RoundedRectangle{});
        window_->setObjectName(anchor_.objectName() + QStringLiteral(".popover"));
        window_->setAccessibleName(anchor_.accessibleName());
    }
    anchor_.window()->installEventFilter(this);
    dismissal_ = platform_.pointerMonitor->addDismissMonitor(
        [this](const platform::DismissEvent& event) { handle(event); });
    place();
    window_->orderFront();
    raiseAfterAnchor();
}

void Popover::dismiss() {
    anchor_.window()->removeEventFilter(this);
    dismissal_.reset();
    window_->orderOut();
}

void Popover::place() {
    const platform::Rect anchor = platform_.windowServer->frameOnScreen(anchor_);
    const PopoverPlacement placement = placePopover(
        anchor, frame_->bodySize(), platform::screenShowing(*platform_.screens, anchor));
    window_->setFrame(placement.frame);
    frame_->setArrow(placement.arrow, placement.arrowX);
}

void Popover::raiseAfterAnchor() {
    // Whoever moves or shows the anchor's window brings it to the front next; the arrow must lie
    // over its edge all the same. And while the window is being shown, the toolkit still tells
    // where it stood before.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (dismissal_) {
                place();
                window_->orderFront();
            }
        },
        Qt::QueuedConnection);
}

void Popover::handle(const platform::DismissEvent& event) {
    const bool inside = event.reason == platform::DismissReason::PointerPressed &&
                        (window_->frame().contains(event.location) ||
                         platform_.windowServer->frameOnScreen(anchor_).contains(event.location));
    // A press on the anchor is its own affair: it may close the popover with a click.
    if (!inside) {
        isPresented_->set(false);
    }
}

Modifier popover(Binding<bool> isPresented, std::function<Element()> contents) {
    return [=](Element element) {
        new Popover(element.widget(), isPresented, contents);
        return element;
    };
}

} // namespace ui
