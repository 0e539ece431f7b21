#pragma once

#include "platform/RunningApplication.h"

#include <QUrl>

#include <optional>
#include <vector>

namespace platform {

/// The user's running applications. Main thread, except where a member says otherwise.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The application that receives the keyboard; empty when there is none.
    virtual std::optional<RunningApplication> frontmostApplication() = 0;

    /// In the system's order. Any thread.
    virtual std::vector<RunningApplication> runningApplications() = 0;

    /// Asks an application to come to the front, with no options. Only a request.
    virtual void activate(const RunningApplication& application) = 0;

    /// Opens a URL with the program that the user prefers for it. The accessibility pane's URL
    /// opens the desktop's own accessibility settings. Answers whether anything was asked to
    /// open it.
    virtual bool openUrl(const QUrl& url) = 0;
};

} // namespace platform
