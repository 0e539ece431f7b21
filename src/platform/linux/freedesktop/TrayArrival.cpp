#include "platform/linux/freedesktop/TrayArrival.h"

#include "core/Log.h"

#include <utility>

namespace platform {

TrayArrival::TrayArrival(RunLoop& runLoop, TrayHost& statusNotifier, TrayHost& xembed,
                         std::function<void()> arrived)
    : runLoop_(runLoop)
    , statusNotifier_(statusNotifier)
    , xembed_(xembed)
    , arrived_(std::move(arrived))
    , statusNotifierObserver_(statusNotifier.observe([this] { look(); }))
    , xembedObserver_(xembed.observe([this] { look(); })) {
    silenceTimer_ = runLoop_.scheduleOnce(silence, RunLoopMode::Common, [] {
        core::log(u"no tray to show the menu in; the icon appears once there is one");
    });
    look();
}

void TrayArrival::look() {
    if (statusNotifier_.isThere()) {
        arrive();
    } else if (!xembed_.isThere()) {
        patienceTimer_.reset();
    } else if (!patienceTimer_) {
        patienceTimer_ = runLoop_.scheduleOnce(patience, RunLoopMode::Common, [this] { arrive(); });
    }
}

void TrayArrival::arrive() {
    statusNotifierObserver_.reset();
    xembedObserver_.reset();
    patienceTimer_.reset();
    silenceTimer_.reset();
    if (const auto arrived = std::exchange(arrived_, nullptr)) {
        arrived();
    }
}

} // namespace platform
