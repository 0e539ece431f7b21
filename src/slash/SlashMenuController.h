#pragma once

#include "platform/Platform.h"
#include "slash/SlashCommand.h"

#include <functional>
#include <memory>

namespace ui {
class FloatingWindow;
class HostingView;
} // namespace ui

namespace slash {

class SlashMenuViewModel;

/// Owns the slash menu's window: shows it at a point, hides it, and reports what is chosen on it.
/// Main thread only.
class SlashMenuController {
public:
    /// On the current platform.
    SlashMenuController();
    explicit SlashMenuController(platform::Platform& platform);
    ~SlashMenuController();
    SlashMenuController(const SlashMenuController&) = delete;
    SlashMenuController& operator=(const SlashMenuController&) = delete;

    /// May be assigned or replaced at any time; a choice that nobody wants is dropped.
    std::function<void(SlashCommand)> onCommandSelected;

    /// Shows the menu with an empty search and the first command highlighted, and gives it the
    /// keyboard. Its top-left corner is at that point, or as near as the whole menu stays on the
    /// screen's visible part. Global points, origin at the bottom-left corner of the primary
    /// screen.
    void show(platform::Point at);

    void hide();

private:
    void createMenuWindow();
    /// As tall as what it shows, from its top-left corner downwards.
    void fitWindow();

    platform::Platform& platform_;
    std::shared_ptr<SlashMenuViewModel> viewModel_;
    std::unique_ptr<ui::FloatingWindow> menuWindow_;
    ui::HostingView* hostingView_ = nullptr;
    platform::Point topLeft_;
    double maximumHeight_ = 0;
    /// What the view's callbacks hold: gone when this object is gone.
    std::shared_ptr<SlashMenuController*> self_;
};

} // namespace slash
