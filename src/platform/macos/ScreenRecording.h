#pragma once

namespace platform::screenRecording {

/// Whether this process may see what other applications show. Never asks the user.
bool isPermitted();

/// Lets the system ask the user, once for each installation. Answers whether it is permitted now;
/// the system may want the program started again before it is.
bool request();

} // namespace platform::screenRecording
