#pragma once

#include "platform/Alerts.h"

namespace platform {

/// The system's own alerts. Escape presses a button titled "Cancel", and an alert without one has
/// a single button.
class AppKitAlerts final : public Alerts {
public:
    int runModal(const Alert& alert) override;
};

} // namespace platform
