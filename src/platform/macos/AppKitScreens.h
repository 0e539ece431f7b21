#pragma once

#include "platform/Screens.h"

namespace platform {

/// Screens and the pointer as AppKit tells of them, which counts like the program does.
class AppKitScreens final : public Screens {
public:
    std::vector<Screen> screens() override;
    std::optional<Screen> mainScreen() override;
    Point pointerLocation() override;
};

} // namespace platform
