#pragma once

#include "core/Registration.h"
#include "platform/RunLoop.h"
#include "platform/linux/TrayHost.h"

#include <functional>

namespace platform {

/// Decides when the tray icon may be made. The toolkit settles on one kind of tray when the first
/// icon is made and never looks again, while at login the desktop's panel often comes up after the
/// program. So the icon is made once: as soon as a StatusNotifier host is there, or when a tray of
/// the older kind has been there for a while and still no such host. From then on the toolkit
/// itself takes a tray of that kind up again that goes and comes back.
class TrayArrival {
public:
    /// A panel that offers both kinds registers them one shortly after the other.
    static constexpr Seconds patience{2.0};

    /// After so long without any tray one line in the log says so.
    static constexpr Seconds silence{10.0};

    /// Calls `arrived` once, at the earliest within the constructor.
    TrayArrival(RunLoop& runLoop, TrayHost& statusNotifier, TrayHost& xembed,
                std::function<void()> arrived);

private:
    void look();
    void arrive();

    RunLoop& runLoop_;
    TrayHost& statusNotifier_;
    TrayHost& xembed_;
    std::function<void()> arrived_;
    core::Registration statusNotifierObserver_;
    core::Registration xembedObserver_;
    core::Registration patienceTimer_;
    core::Registration silenceTimer_;
};

} // namespace platform
