#pragma once

namespace platform {

/// Keeps what the toolkit's own accessibility bridge says about itself from the log: newer ones
/// tell of each window and alert that they lose their way in it, which is nobody's fault here and
/// nothing that a user could act upon. Everything else that the toolkit says goes where it went.
void silenceAccessibilityBridge();

} // namespace platform
