#pragma once

#include "platform/SystemInfo.h"

namespace platform {

/// The program's identity on Linux, where no bundle carries it, and the distribution's.
class LinuxSystemInfo final : public SystemInfo {
public:
    std::optional<QString> bundleIdentifier() override;
    std::optional<QString> marketingVersion() override;
    std::optional<QString> buildNumber() override;
    /// The distribution's; the kernel's where a distribution has no versions.
    OperatingSystemVersion operatingSystemVersion() override;
    QString userName() override;
};

/// The first three numbers at the start of the distribution's version ("24.04", "12", "unknown"),
/// or of the kernel's ("6.1.0-28-amd64") when that starts with none.
OperatingSystemVersion versionNumbers(const QString& distribution, const QString& kernel);

} // namespace platform
