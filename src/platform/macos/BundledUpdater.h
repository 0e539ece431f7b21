#pragma once

#include "platform/Updater.h"

#include <memory>

namespace platform {

/// The updater framework, where the bundle brings it along; otherwise nothing is ever looked up.
/// What it does is configured in the bundle's information file.
class BundledUpdater final : public Updater {
public:
    /// Loads the framework of that name out of the bundle's own frameworks. Starts nothing.
    explicit BundledUpdater(const char* framework = "Sparkle.framework");
    ~BundledUpdater() override;

    void startUpdater() override;
    void checkForUpdates() override;

private:
    struct Controller;
    std::unique_ptr<Controller> controller_;
};

} // namespace platform
