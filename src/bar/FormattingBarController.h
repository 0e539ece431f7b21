#pragma once

#include "bar/TextFormat.h"
#include "core/Registration.h"
#include "platform/Platform.h"

#include <functional>
#include <memory>

namespace ui {
class FloatingWindow;
class HostingView;
} // namespace ui

namespace bar {

/// Owns the floating bar: places it at a selection, hides it after a moment's grace, and reports
/// what is chosen on it. Main thread only.
class FormattingBarController {
public:
    /// On the current platform.
    FormattingBarController();
    explicit FormattingBarController(platform::Platform& platform);
    ~FormattingBarController();
    FormattingBarController(const FormattingBarController&) = delete;
    FormattingBarController& operator=(const FormattingBarController&) = delete;

    /// Each may be assigned or replaced at any time; a choice that nobody wants is dropped.
    std::function<void(TextFormat)> onFormatSelected;
    std::function<void(HeadingLevel)> onHeadingSelected;
    std::function<void()> onOpenColorPicker;

    /// Shows the bar near a selection and calls off a pending hide. Global points, origin at the
    /// bottom-left corner of the primary screen.
    void show(const platform::Rect& near);

    /// Hides the bar 0.3 s from now, unless it is shown again first.
    void hide();

private:
    void createBarWindow(platform::Point origin);
    void orderFront();
    /// Leaves word where the colour panel goes, beside the bar; answers whom to tell.
    std::function<void()> noteColorPanelPosition() const;

    platform::Platform& platform_;
    std::unique_ptr<ui::FloatingWindow> barWindow_;
    ui::HostingView* hostingView_ = nullptr;
    [[maybe_unused]] platform::Rect notesWindowFrame_;
    core::Registration hideTimer_;
    /// What the view's callbacks hold: gone when this object is gone.
    std::shared_ptr<FormattingBarController*> self_;
};

} // namespace bar
