#pragma once

#include "platform/Updater.h"

namespace platform {

/// Looks for nothing: there is no feed of newer versions to read on this system yet.
class InertUpdater final : public Updater {
public:
    void startUpdater() override {}
    void checkForUpdates() override {}
};

} // namespace platform
