#pragma once

#include <QString>

#include <optional>

namespace platform {

enum class LoginItemStatus { NotRegistered, Enabled, RequiresApproval, NotFound };

/// The program's own registration to be started at login. Main thread only.
class LoginItem {
public:
    /// The system's description of what went wrong; empty for success.
    using Error = std::optional<QString>;

    virtual ~LoginItem() = default;

    virtual LoginItemStatus status() = 0;
    [[nodiscard]] virtual Error registerItem() = 0;
    /// Removing what is not registered is an error.
    [[nodiscard]] virtual Error unregisterItem() = 0;
};

} // namespace platform
