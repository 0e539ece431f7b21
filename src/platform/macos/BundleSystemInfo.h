#pragma once

#include "platform/SystemInfo.h"

namespace platform {

/// Who this program is as its bundle says, and for whom it runs as Foundation does.
class BundleSystemInfo final : public SystemInfo {
public:
    std::optional<QString> bundleIdentifier() override;
    std::optional<QString> marketingVersion() override;
    std::optional<QString> buildNumber() override;
    OperatingSystemVersion operatingSystemVersion() override;
    QString userName() override;
};

} // namespace platform
