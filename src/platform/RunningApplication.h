#pragma once

#include "platform/IconReference.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace platform {

using ProcessIdentifier = std::int64_t;

/// Regular: an ordinary application with windows of its own. Accessory: one that lives in the
/// menu bar.
enum class ActivationPolicy { Regular, Accessory, Prohibited };

/// A running application, identified by its process.
struct RunningApplication {
    ProcessIdentifier processIdentifier = 0;
    std::optional<QString> bundleIdentifier;
    std::optional<QString> localizedName;
    ActivationPolicy activationPolicy = ActivationPolicy::Regular;
    std::optional<IconReference> icon;

    bool operator==(const RunningApplication& other) const {
        return processIdentifier == other.processIdentifier;
    }
};

} // namespace platform
