#pragma once

#include "platform/Workspace.h"
#include "platform/linux/freedesktop/DesktopEntryIndex.h"
#include "platform/linux/x11/EwmhWindows.h"

#include <map>

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
    /// The answer for the window that was active when it was last asked for.
    xcb_window_t identifiedWindow_ = XCB_WINDOW_NONE;
    std::optional<RunningApplication> identified_;
    core::Registration propertyChanges_;
    core::Registration indexChanges_;
};

} // namespace platform
