#include "platform/linux/x11/ModifierMapping.h"

#include "platform/linux/x11/XcbDisplay.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

struct Duty {
    std::uint64_t flag;
    xcb_map_index_t row;
};

constexpr auto duties = std::to_array<Duty>({
    {modifierFlags::command, XCB_MAP_INDEX_CONTROL},
    {modifierFlags::option, XCB_MAP_INDEX_1},
    {modifierFlags::control, XCB_MAP_INDEX_4},
    {modifierFlags::shift, XCB_MAP_INDEX_SHIFT},
});

} // namespace

ModifierMapping::ModifierMapping(std::span<const std::uint8_t> keys, std::size_t keysPerModifier) {
    for (std::size_t index = 0; index < std::min(keys.size(), rowCount * keysPerModifier);
         ++index) {
        if (const ScanCode key = keys[index]; key != 0) {
            rows_[index / keysPerModifier].push_back(key);
            all_.set(key);
        }
    }
}

std::optional<ModifierMapping> ModifierMapping::read(XcbDisplay& display) {
    const auto reply =
        display.reply<xcb_get_modifier_mapping_reply_t>(xcb_get_modifier_mapping(display.get()));
    if (!reply) {
        return std::nullopt;
    }
    const auto count =
        static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(reply.get()));
    return ModifierMapping({xcb_get_modifier_mapping_keycodes(reply.get()), count},
                           reply->keycodes_per_modifier);
}

std::uint64_t ModifierMapping::flags(const KeySet& down) const {
    std::uint64_t flags = 0;
    for (const auto& [flag, row] : duties) {
        if (std::ranges::any_of(rows_[row], [&](ScanCode key) { return down.test(key); })) {
            flags |= flag;
        }
    }
    return flags;
}

std::vector<std::vector<ScanCode>> ModifierMapping::waysToPress(std::uint64_t flags) const {
    std::vector<std::vector<ScanCode>> ways{{}};
    for (const auto& [flag, row] : duties) {
        if ((flags & flag) == 0) {
            continue;
        }
        std::vector<std::vector<ScanCode>> longer;
        for (const auto& way : ways) {
            for (const ScanCode key : rows_[row]) {
                longer.push_back(way);
                longer.back().push_back(key);
            }
        }
        ways = std::move(longer);
    }
    return ways;
}

std::uint8_t ModifierMapping::realModifiers(std::uint64_t flags) {
    int bits = 0;
    for (const auto& [flag, row] : duties) {
        bits |= (flags & flag) != 0 ? 1 << row : 0;
    }
    return static_cast<std::uint8_t>(bits);
}

} // namespace platform
