#pragma once

#include <QString>

#include <optional>

namespace platform {

/// Who this program is. Any thread.
class SystemInfo {
public:
    virtual ~SystemInfo() = default;

    virtual std::optional<QString> bundleIdentifier() = 0;
};

} // namespace platform
