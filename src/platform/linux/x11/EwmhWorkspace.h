#pragma once

#include "platform/KeyTarget.h"
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

    /// Whether the application that was last asked to come to the front has the keyboard. One
    /// without a window never has.
    bool keyTargetIsInFront() { return keyTarget_.isInFront(frontmostApplication()); }

private:
    void activateWindow(xcb_window_t window);
    std::optional<xcb_window_t> windowOf(ProcessIdentifier process);

    EwmhWindows& windows_;
    DesktopEntryIndex& index_;
    const QString ownIdentifier_;
    KeyTarget keyTarget_;
    /// The application of the active window, and the activation for which it was found; no
    /// activation when it must be found again.
    std::optional<RunningApplication> identified_;
    std::optional<std::uint64_t> identifiedActivation_;
    core::Registration propertyChanges_;
    core::Registration indexChanges_;
};

} // namespace platform
