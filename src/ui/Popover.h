#pragma once

#include "core/Registration.h"
#include "platform/Platform.h"
#include "ui/Binding.h"
#include "ui/FloatingWindow.h"
#include "ui/Modifiers.h"

#include <functional>
#include <memory>

namespace ui {

class PopoverFrame;

/// A floating window with an arrow that points at a widget. It is presented while a binding is
/// true and the widget can be seen; dismissing it makes the binding false. It goes where the
/// widget goes and never takes the keyboard or the pointer away from anybody.
class Popover final : public QObject {
public:
    Popover(QWidget& anchor, Binding<bool> isPresented, std::function<Element()> contents);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update(bool presented);
    void present();
    void dismiss();
    void place();
    void raiseAfterAnchor();
    void handle(const platform::DismissEvent& event);

    platform::Platform& platform_;
    QWidget& anchor_;
    Binding<bool> isPresented_;
    std::function<Element()> contents_;
    std::unique_ptr<FloatingWindow> window_;
    PopoverFrame* frame_ = nullptr;
    core::Registration presentation_;
    core::Registration dismissal_;
};

/// Presents a popover below an element while `isPresented` holds. Its contents are made when they
/// are shown for the first time.
Modifier popover(Binding<bool> isPresented, std::function<Element()> contents);

} // namespace ui
