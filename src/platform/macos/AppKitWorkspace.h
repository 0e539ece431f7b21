#pragma once

#include "platform/Workspace.h"

namespace platform {

/// Applications as the shared workspace tells of them.
class AppKitWorkspace final : public Workspace {
public:
    std::optional<RunningApplication> frontmostApplication() override;
    std::vector<RunningApplication> runningApplications() override;
    void activate(const RunningApplication& application) override;
    bool openUrl(const QUrl& url) override;
};

} // namespace platform
