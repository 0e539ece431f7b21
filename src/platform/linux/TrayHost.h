#pragma once

#include "core/Registration.h"

#include <functional>

namespace platform {

/// One of the two kinds of tray that show status items on Linux desktops. Main thread only.
class TrayHost {
public:
    virtual ~TrayHost() = default;

    /// Whether such a tray is known to be there. Never asks anybody and never blocks.
    virtual bool isThere() const = 0;

    /// Calls `handler` whenever isThere() has changed, for as long as the registration lives.
    virtual core::Registration observe(std::function<void()> handler) = 0;
};

} // namespace platform
