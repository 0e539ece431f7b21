#pragma once

#include "platform/KeyboardEvents.h"
#include "platform/linux/keyboard/VirtualKeyCodes.h"

#include <deque>

namespace platform {

/// One key going down or coming up.
struct KeyStroke {
    ScanCode key = 0;
    KeyDirection direction = KeyDirection::Down;

    bool operator==(const KeyStroke&) const = default;
};

/// Remembers the key strokes that this program posted, so that their echoes are not taken for the
/// user's.
///
/// The device cannot tell them apart, since other programs post through the same one. But the
/// server handles a posted stroke within its request, and an event carries the number of the last
/// request of the connection it is sent on: on the connection that posted, the echo alone has both
/// the request's number and its key and direction.
class OwnKeyStrokes {
public:
    void add(std::uint32_t sequence, KeyStroke stroke);

    /// Whether this event is the echo of one of our own strokes. Each answers once.
    bool take(std::uint32_t sequence, KeyStroke stroke);

private:
    struct Entry {
        std::uint32_t sequence;
        KeyStroke stroke;
        bool operator==(const Entry&) const = default;
    };
    std::deque<Entry> entries_;
};

} // namespace platform
