#pragma once

#include "platform/linux/keyboard/KeyboardLayout.h"
#include "platform/linux/x11/ModifierMapping.h"

#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <memory>
#include <optional>

namespace platform {

class XcbDisplay;

struct UnreferenceKeyboardContext {
    void operator()(xkb_context* context) const { xkb_context_unref(context); }
};

/// The keyboard as the X server has it at the moment of asking.
class ServerKeyboard {
public:
    explicit ServerKeyboard(XcbDisplay& display);

    /// Whether the server has what is needed for posting keys.
    bool canPost() const { return canPost_; }

    struct State {
        /// The active layout of the keymap.
        xkb_layout_index_t group = 0;
        /// Whether a modifier would join in a posted shortcut. Caps Lock and Num Lock do not count.
        bool modifiersHeld = false;
    };

    /// Empty when the server does not answer.
    std::optional<State> state();

    /// By which applications will understand posted keys: the keymap of the device that posts,
    /// which can differ from that of the keys under the user's fingers. Null when the server does
    /// not give it.
    Keymap postingKeymap();

    /// The keys that are down on the posting device.
    KeySet postedKeysDown();

private:
    std::optional<std::uint16_t> findPostingDevice();

    XcbDisplay& display_;
    std::unique_ptr<xkb_context, UnreferenceKeyboardContext> context_;
    bool canPost_ = false;
    std::optional<std::uint16_t> postingDevice_;
};

} // namespace platform
