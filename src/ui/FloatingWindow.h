#pragma once

#include "platform/WindowServer.h"
#include "ui/Element.h"
#include "ui/RoundedRectangle.h"

namespace ui {

class CornerClip;

/// A borderless window of any shape that floats above the others. Where
/// windows cannot be translucent it is opaque and takes its shape from what it draws.
class FloatingWindow final : public QWidget {
public:
    /// The contents always fill the window, whose own corners are cut to `shape`.
    FloatingWindow(platform::WindowServer& windowServer, Element contents, RoundedRectangle shape,
                   platform::KeyboardFocus keyboard = platform::KeyboardFocus::Never);

    /// Global points, origin at the bottom-left corner of the primary screen.
    void setFrame(const platform::Rect& frame);
    platform::Rect frame() const;

    /// Shows the window in front of the others without making it the key window.
    void orderFront();
    /// Shows the window in front of the others and gives it the keyboard, which it must be allowed
    /// to have.
    void makeKeyAndOrderFront();
    void orderOut();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void prepareToShow();
    void takeShapeFromContents();
    void setOpaque(bool opaque);

    platform::WindowServer& windowServer_;
    QWidget& contents_;
    CornerClip& clip_;
    bool opaque_ = false;
};

} // namespace ui
