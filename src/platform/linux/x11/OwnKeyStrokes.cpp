#include "platform/linux/x11/OwnKeyStrokes.h"

#include <algorithm>

namespace platform {

void OwnKeyStrokes::add(std::uint32_t sequence, KeyStroke stroke) {
    // While nobody watches the keyboard no echo comes.
    constexpr std::size_t mostRemembered = 256;
    if (entries_.size() == mostRemembered) {
        entries_.pop_front();
    }
    entries_.push_back({sequence, stroke});
}

bool OwnKeyStrokes::take(std::uint32_t sequence, KeyStroke stroke) {
    const auto found = std::ranges::find(entries_, Entry{sequence, stroke});
    if (found == entries_.end()) {
        return false;
    }
    // Events come in the order of their requests.
    entries_.erase(entries_.begin(), found + 1);
    return true;
}

} // namespace platform
