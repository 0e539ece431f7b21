#include "app/MenuTracking.h"

#include <QMenu>

namespace app {

MenuTracking::MenuTracking(QMenu& menu, platform::RunLoop& runLoop,
                           platform::PointerMonitor& pointerMonitor, platform::MenuClosing closing)
    : menu_(menu)
    , runLoop_(runLoop)
    , pointerMonitor_(pointerMonitor)
    , closing_(closing) {
    connect(&menu, &QMenu::aboutToShow, this, &MenuTracking::begin);
    connect(&menu, &QMenu::aboutToHide, this, &MenuTracking::end);
    connect(&menu, &QMenu::triggered, this, &MenuTracking::end);
}

MenuTracking::~MenuTracking() {
    end();
}

void MenuTracking::begin() {
    if (!open_) {
        open_ = true;
        runLoop_.beginMenuTracking();
    }
    if (closing_ == platform::MenuClosing::Guessed) {
        watchUnseenMenu();
    }
}

void MenuTracking::end() {
    dismissMonitor_.reset();
    limit_.reset();
    if (open_) {
        open_ = false;
        runLoop_.endMenuTracking();
    }
}

void MenuTracking::watchUnseenMenu() {
    const auto endUnlessSeen = [this] {
        // A menu of our own surely tells when it closes.
        if (!menu_.isVisible()) {
            end();
        }
    };
    dismissMonitor_ = pointerMonitor_.addDismissMonitor(
        [endUnlessSeen](const platform::DismissEvent&) { endUnlessSeen(); });
    limit_ = runLoop_.scheduleOnce(longestUnseen, platform::RunLoopMode::Common, endUnlessSeen);
}

} // namespace app
