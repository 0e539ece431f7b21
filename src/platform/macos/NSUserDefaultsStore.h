#pragma once

#include "platform/UserDefaults.h"

namespace platform {

/// The user's defaults under the bundle's identifier. The system writes them to disk by itself.
class NSUserDefaultsStore final : public UserDefaults {
public:
    std::optional<DefaultsValue> object(const QString& key) const override;
    void set(const QString& key, const DefaultsValue& value) override;
};

} // namespace platform
