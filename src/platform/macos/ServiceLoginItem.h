#pragma once

#include "platform/LoginItem.h"

namespace platform {

/// The main application's own service at login. The user may refuse it in the system settings.
class ServiceLoginItem final : public LoginItem {
public:
    LoginItemStatus status() override;
    [[nodiscard]] Error registerItem() override;
    [[nodiscard]] Error unregisterItem() override;
};

} // namespace platform
