#pragma once

#include "platform/linux/keyboard/VirtualKeyCodes.h"

#include <array>
#include <bitset>
#include <optional>
#include <span>
#include <vector>

namespace platform {

class XcbDisplay;

/// Keys by their scan codes, such as those that are down.
using KeySet = std::bitset<256>;

/// Which keys are which modifiers, by the X server's table of them. The four flags stand for
/// modifiers with the same duty here: Command for Control, Option for Alt, Control for Super.
class ModifierMapping {
public:
    ModifierMapping() = default;

    /// `keys` holds eight rows of `keysPerModifier` scan codes each; zero stands for no key.
    ModifierMapping(std::span<const std::uint8_t> keys, std::size_t keysPerModifier);

    /// Asks the server. Empty when it does not answer.
    static std::optional<ModifierMapping> read(XcbDisplay& display);

    /// Locks count as modifiers.
    bool isModifier(ScanCode key) const { return all_.test(key); }

    /// Those of the four flags of which some key is down.
    std::uint64_t flags(const KeySet& down) const;

    /// Every choice of one key for each flag, in the order in which they are to be pressed; the
    /// usual choice first. None when a modifier has no key on this keyboard.
    std::vector<std::vector<ScanCode>> waysToPress(std::uint64_t flags) const;

    /// The server's modifier bits for the flags.
    static std::uint8_t realModifiers(std::uint64_t flags);

private:
    static constexpr std::size_t rowCount = 8;

    std::array<std::vector<ScanCode>, rowCount> rows_;
    KeySet all_;
};

} // namespace platform
