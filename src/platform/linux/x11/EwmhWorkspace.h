#pragma once

#include "platform/Workspace.h"
#include "platform/linux/freedesktop/DesktopEntryIndex.h"
#include "platform/linux/x11/EwmhWindows.h"

#include <cstdint>

namespace platform {

/// Applications as the windows on an X server tell of them.
class EwmhWorkspace final : public Workspace {
public:
    /// `ownIdentifier` is what this program's own windows answer with.
    EwmhWorkspace(EwmhWindows& windows, DesktopEntryIndex& index, QString ownIdentifier);

    std::optional<RunningApplication> frontmostApplication() override;
    std::vector<RunningApplication> runningApplications() override;
    void activate(const RunningApplication& application) override;
    bool openUrl(const QUrl& url) override;

private:
    void activateWindow(xcb_window_t window);
    std::optional<xcb_window_t> windowOf(ProcessIdentifier process);

    EwmhWindows& windows_;
    DesktopEntryIndex& index_;
    const QString ownIdentifier_;
    /// The application of the active window, and the activation for which it was found; no
    /// activation when it must be found again.
    std::optional<RunningApplication> identified_;
    std::optional<std::uint64_t> identifiedActivation_;
    core::Registration propertyChanges_;
    core::Registration indexChanges_;
};

} // namespace platform
