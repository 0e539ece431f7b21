#include "slash/SlashMenuController.h"

#include "slash/SlashMenuViewModel.h"
#include "slash/views/KeyboardHandlingView.h"
#include "slash/views/SlashMenuView.h"
#include "ui/FloatingWindow.h"
#include "ui/HostingView.h"

#include <algorithm>

namespace slash {

namespace {

constexpr double menuWidth = 320;
constexpr double largestHeight = 360;

} // namespace

SlashMenuController::SlashMenuController()
    : SlashMenuController(platform::current()) {}

SlashMenuController::SlashMenuController(platform::Platform& platform)
    : platform_(platform)
    , self_(std::make_shared<SlashMenuController*>(this)) {}

SlashMenuController::~SlashMenuController() = default;

void SlashMenuController::show(platform::Point at) {
    if (!menuWindow_) {
        createMenuWindow();
    }
    viewModel_->searchText = QString();
    viewModel_->selectedIndex = 0;

    topLeft_ = at;
    maximumHeight_ = largestHeight;
    if (const auto screen = platform::screenShowing(*platform_.screens, {at.x, at.y, 0, 0})) {
        const platform::Rect& visible = screen->visibleFrame;
        maximumHeight_ = std::min(largestHeight, visible.height);
        topLeft_.x = std::max(visible.minX(), std::min(at.x, visible.maxX() - menuWidth));
        topLeft_.y = std::min(visible.maxY(), std::max(at.y, visible.minY() + maximumHeight_));
    }
    fitWindow();
    menuWindow_->makeKeyAndOrderFront();
}

void SlashMenuController::hide() {
    if (menuWindow_) {
        menuWindow_->orderOut();
    }
}

void SlashMenuController::createMenuWindow() {
    const std::weak_ptr<SlashMenuController*> weak = self_;
    // The callback is copied, since it may end this object and itself with it.
    viewModel_ = std::make_shared<SlashMenuViewModel>([weak](SlashCommand command) {
        const auto self = weak.lock();
        if (const auto report = self ? (*self)->onCommandSelected : nullptr) {
            report(command);
        }
    });

    auto keyboard = std::make_unique<KeyboardHandlingView>(*platform_.keyPresses);
    KeyboardHandlingView& keys = *keyboard;
    keys.onUpArrow = [viewModel = viewModel_] { viewModel->moveUp(); };
    keys.onDownArrow = [viewModel = viewModel_] { viewModel->moveDown(); };
    keys.onReturn = [viewModel = viewModel_] { viewModel->selectCurrent(); };
    keys.onEscape = [weak] {
        if (const auto self = weak.lock()) {
            (*self)->hide();
        }
    };

    auto hosting = std::make_unique<ui::HostingView>(
        SlashMenuView{.viewModel = viewModel_,
                      .onKeyPress = [&keys](QKeyEvent& event) { return keys.keyDown(event); }},
        ui::HostingView::Sizing::Filling);
    hostingView_ = hosting.get();
    hostingView_->onIdealSizeChange = [this] { fitWindow(); };
    // A press beside the search field leaves the keyboard there.
    keys.setFocusProxy(hostingView_->findChild<QWidget*>(QStringLiteral("search")));
    hostingView_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    ui::embed(keys, ui::Element(std::move(hosting)));

    menuWindow_ = std::make_unique<ui::FloatingWindow>(
        *platform_.windowServer, ui::Element(std::move(keyboard)),
        ui::RoundedRectangle{SlashMenuView::cornerRadius}, platform::KeyboardFocus::WhenInFront);
    menuWindow_->setObjectName(QStringLiteral("slashMenu"));
    menuWindow_->setAccessibleName(QStringLiteral("Commands"));
}

void SlashMenuController::fitWindow() {
    const double height =
        std::min(maximumHeight_, static_cast<double>(hostingView_->idealSize().height()));
    menuWindow_->setFrame({topLeft_.x, topLeft_.y - height, menuWidth, height});
}

} // namespace slash
