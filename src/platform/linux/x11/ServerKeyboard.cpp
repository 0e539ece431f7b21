#include "platform/linux/x11/ServerKeyboard.h"

#include "platform/linux/x11/XcbDisplay.h"
#include "platform/linux/x11/XcbXkb.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <span>

namespace platform {

namespace {

bool hasExtension(XcbDisplay& display, xcb_extension_t& extension) {
    const auto* data = xcb_get_extension_data(display.get(), &extension);
    return data != nullptr && data->present != 0;
}

} // namespace

ServerKeyboard::ServerKeyboard(XcbDisplay& display)
    : display_(display)
    , context_(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES)) {
    if (!context_ || !hasExtension(display, xcb_test_id) || !hasExtension(display, xcb_xkb_id) ||
        !hasExtension(display, xcb_input_id)) {
        return;
    }
    const auto xkb = display.reply<xcb_xkb_use_extension_reply_t>(
        xcb_xkb_use_extension(display.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION));
    const auto input = display.reply<xcb_input_xi_query_version_reply_t>(
        xcb_input_xi_query_version(display.get(), 2, 2));
    canPost_ = xkb && xkb->supported != 0 && input;
    if (canPost_) {
        postingDevice_ = findPostingDevice();
    }
}

std::optional<ServerKeyboard::State> ServerKeyboard::state() {
    const auto reply = display_.reply<xcb_xkb_get_state_reply_t>(
        xcb_xkb_get_state(display_.get(), XCB_XKB_ID_USE_CORE_KBD));
    if (!reply) {
        return std::nullopt;
    }
    // Num Lock sits on the second modifier wherever there is one. Any modifier counts while it is
    // down or waits for the next key, AltGr included; of those that are locked only the four that
    // make a shortcut do: a locked Shift (not Caps Lock) would make another one of ours.
    constexpr int harmless = XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2;
    constexpr int shortcut =
        XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;
    const int held = (reply->baseMods | reply->latchedMods) & ~harmless;
    return State{.group = reply->group,
                 .modifiersHeld = held != 0 || (reply->lockedMods & shortcut) != 0};
}

Keymap ServerKeyboard::postingKeymap() {
    const auto coreKeyboard = xkb_x11_get_core_keyboard_device_id(display_.get());
    return Keymap(xkb_x11_keymap_new_from_device(context_.get(), display_.get(),
                                                 postingDevice_ ? *postingDevice_ : coreKeyboard,
                                                 XKB_KEYMAP_COMPILE_NO_FLAGS));
}

KeySet ServerKeyboard::postedKeysDown() {
    KeySet down;
    if (!postingDevice_) {
        return down;
    }
    const auto reply = display_.reply<xcb_input_query_device_state_reply_t>(
        xcb_input_query_device_state(display_.get(), static_cast<std::uint8_t>(*postingDevice_)));
    if (!reply) {
        return down;
    }
    auto classes = xcb_input_query_device_state_classes_iterator(reply.get());
    for (; classes.rem > 0; xcb_input_input_state_next(&classes)) {
        if (classes.data->class_id != XCB_INPUT_INPUT_CLASS_KEY) {
            continue;
        }
        const auto& keys = *reinterpret_cast<const xcb_input_key_state_t*>(classes.data);
        for (std::size_t key = 0; key < down.size(); ++key) {
            down.set(key, ((keys.keys[key / 8] >> (key % 8)) & 1) != 0);
        }
    }
    return down;
}

/// The server has one such keyboard for each keyboard focus, and the first is the one that an
/// ordinary client posts through.
std::optional<std::uint16_t> ServerKeyboard::findPostingDevice() {
    const xcb_atom_t mark = display_.atom("XTEST Device");
    const auto reply = display_.reply<xcb_input_xi_query_device_reply_t>(
        xcb_input_xi_query_device(display_.get(), XCB_INPUT_DEVICE_ALL));
    if (!reply || mark == XCB_ATOM_NONE) {
        return std::nullopt;
    }
    auto devices = xcb_input_xi_query_device_infos_iterator(reply.get());
    for (; devices.rem > 0; xcb_input_xi_device_info_next(&devices)) {
        const auto& device = *devices.data;
        if (device.type != XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD) {
            continue;
        }
        const auto property =
            display_.reply<xcb_input_xi_get_property_reply_t>(xcb_input_xi_get_property(
                display_.get(), device.deviceid, 0, mark, XCB_ATOM_ANY, 0, 1));
        if (property && property->num_items > 0) {
            return device.deviceid;
        }
    }
    return std::nullopt;
}

} // namespace platform
