#pragma once

#include <QString>

namespace platform {

/// How the desktop recognises what the user did to bring up a window, so that the window may take
/// the keyboard. Opaque; a field is empty when the desktop gave none.
struct ActivationToken {
    /// Of the startup notification protocol ("DESKTOP_STARTUP_ID").
    QString startupId;
    /// Of the window activation protocol ("XDG_ACTIVATION_TOKEN").
    QString xdgToken;

    bool operator==(const ActivationToken&) const = default;
};

} // namespace platform
