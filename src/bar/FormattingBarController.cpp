#include "bar/FormattingBarController.h"

#include "bar/BarPlacement.h"
#include "bar/FormattingBarViewModel.h"
#include "bar/views/FormattingBarView.h"
#include "monitor/NotesAutomation.h"
#include "ui/FloatingWindow.h"
#include "ui/HostingView.h"

namespace bar {

namespace {

constexpr platform::Seconds hideDelay{0.3};

} // namespace

FormattingBarController::FormattingBarController()
    : FormattingBarController(platform::current()) {}

FormattingBarController::FormattingBarController(platform::Platform& platform)
    : platform_(platform)
    , self_(std::make_shared<FormattingBarController*>(this)) {}

FormattingBarController::~FormattingBarController() = default;

void FormattingBarController::show(const platform::Rect& near) {
    hideTimer_.reset();
    const platform::Point origin =
        barOrigin(near, platform::screenShowing(*platform_.screens, near));
    if (!barWindow_) {
        createBarWindow(origin);
        return;
    }
    barWindow_->setFrame({origin.x, origin.y, BarMetrics::placementWidth, BarMetrics::height});
    orderFront();
}

void FormattingBarController::hide() {
    hideTimer_ = platform_.runLoop->scheduleOnce(hideDelay, platform::RunLoopMode::Common, [this] {
        if (barWindow_) {
            barWindow_->orderOut();
        }
    });
}

void FormattingBarController::createBarWindow(platform::Point origin) {
    const std::weak_ptr<FormattingBarController*> weak = self_;
    // The callback is copied, since it may end this object and itself with it.
    const auto viewModel = std::make_shared<FormattingBarViewModel>(
        [weak](TextFormat format) {
            const auto self = weak.lock();
            if (const auto report = self ? (*self)->onFormatSelected : nullptr) {
                report(format);
            }
        },
        [weak](HeadingLevel level) {
            const auto self = weak.lock();
            if (const auto report = self ? (*self)->onHeadingSelected : nullptr) {
                report(level);
            }
        },
        [weak] {
            const auto self = weak.lock();
            if (const auto report = self ? (*self)->noteColorPanelPosition() : nullptr) {
                report();
            }
        });
    auto hostingView = std::make_unique<ui::HostingView>(FormattingBarView{viewModel});
    hostingView_ = hostingView.get();
    barWindow_ = std::make_unique<ui::FloatingWindow>(
        *platform_.windowServer, ui::Element(std::move(hostingView)),
        ui::RoundedRectangle{BarMetrics::cornerRadius});
    barWindow_->setObjectName(QStringLiteral("bar"));
    barWindow_->setFrame({origin.x, origin.y, BarMetrics::creationWidth, BarMetrics::height});
    orderFront();
}

void FormattingBarController::orderFront() {
    barWindow_->orderFront();
    const auto* view = hostingView_->findChild<QWidget*>(QStringLiteral("FormattingBarView"));
    const VisualEffectBackground& effect = FormattingBarView::background;
    platform_.windowServer->setMaterial(*view, {static_cast<int>(effect.material),
                                                static_cast<int>(effect.blendingMode),
                                                BarMetrics::cornerRadius});
}

std::function<void()> FormattingBarController::noteColorPanelPosition() const {
    const platform::Rect frame = barWindow_->frame();
    monitor::NotesAutomation::colorPanelPosition = {frame.maxX() + BarMetrics::colorPanelGap,
                                                    frame.minY()};
    return onOpenColorPicker;
}

} // namespace bar
