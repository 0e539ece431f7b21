#pragma once

#include "platform/SystemInfo.h"

namespace platform {

/// The program's identity on Linux, where no bundle carries it.
class LinuxSystemInfo final : public SystemInfo {
public:
    std::optional<QString> bundleIdentifier() override {
        return QStringLiteral("com.corvane.Quillet");
    }
};

} // namespace platform
