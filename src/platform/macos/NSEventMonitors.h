#pragma once

#include "platform/GlobalKeyMonitor.h"
#include "platform/PointerMonitor.h"

namespace platform {

/// Key presses in other applications. The system tells of them only while the program is trusted
/// for accessibility.
class NSEventKeyMonitor final : public GlobalKeyMonitor {
public:
    core::Registration addKeyDownMonitor(Handler handler) override;
};

/// Presses of the pointer's buttons, in other applications and in the program's own windows.
class NSEventPointerMonitor final : public PointerMonitor {
public:
    core::Registration addDismissMonitor(Handler handler) override;
};

} // namespace platform
