#pragma once

#include <sys/types.h>

namespace platform {

/// Sees to it that the X server handles all that was sent to it, even if this program is killed
/// while this object lives. Without it the server drops what it has read and not yet handled once
/// it notices that the client is gone, half of a chord included.
///
/// A second process holds the connection meanwhile. If this program goes, it says that no more
/// will be sent, waits until the server has handled the rest and hung up, and goes as well. Where
/// no process can be started there is simply no such protection.
class ConnectionKeeper {
public:
    /// `socket` is the connection's file descriptor.
    explicit ConnectionKeeper(int socket);
    ~ConnectionKeeper();
    ConnectionKeeper(const ConnectionKeeper&) = delete;
    ConnectionKeeper& operator=(const ConnectionKeeper&) = delete;

private:
    pid_t keeper_ = -1;
    /// Closes with this program, whatever ends it.
    int lifeline_ = -1;
};

} // namespace platform
