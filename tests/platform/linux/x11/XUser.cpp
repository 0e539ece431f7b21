#include "XUser.h"

#include "platform/linux/x11/XcbXkb.h"

#include <xcb/xtest.h>

#include <stdexcept>
#include <utility>

namespace desktop {

namespace {

std::unique_ptr<platform::XcbDisplay> connect() {
    auto display = platform::XcbDisplay::connect();
    if (!display) {
        throw std::runtime_error("no X server");
    }
    return display;
}

} // namespace

void settle(platform::XcbDisplay& display) {
    const platform::XcbPointer<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(display.get(), xcb_get_input_focus(display.get()), nullptr));
    if (!reply) {
        throw std::runtime_error("the X server does not answer");
    }
}

void setNumbers(platform::XcbDisplay& display, xcb_window_t window, const char* property,
                xcb_atom_t type, const std::vector<std::uint32_t>& values) {
    xcb_change_property(display.get(), XCB_PROP_MODE_REPLACE, window, display.atom(property), type,
                        32, static_cast<std::uint32_t>(values.size()), values.data());
    settle(display);
}

XUser::XUser()
    : display_(connect()) {
    const platform::XcbPointer<xcb_xkb_use_extension_reply_t> xkb(xcb_xkb_use_extension_reply(
        display_->get(), xcb_xkb_use_extension(display_->get(), 1, 0), nullptr));
    if (!xkb) {
        throw std::runtime_error("no keyboard extension");
    }
}

void XUser::press(platform::ScanCode key) {
    fake(XCB_KEY_PRESS, key);
}

void XUser::release(platform::ScanCode key) {
    fake(XCB_KEY_RELEASE, key);
}

void XUser::tap(platform::ScanCode key) {
    press(key);
    release(key);
}

void XUser::movePointer(std::int16_t x, std::int16_t y) {
    fake(XCB_MOTION_NOTIFY, 0, x, y);
}

void XUser::click(std::uint8_t button) {
    fake(XCB_BUTTON_PRESS, button);
    fake(XCB_BUTTON_RELEASE, button);
}

void XUser::fake(std::uint8_t type, std::uint8_t detail, std::int16_t x, std::int16_t y) {
    xcb_test_fake_input(display_->get(), type, detail, XCB_CURRENT_TIME, XCB_NONE, x, y, 0);
    settle(*display_);
}

platform::KeySet XUser::keysDown() {
    const platform::XcbPointer<xcb_query_keymap_reply_t> reply(
        xcb_query_keymap_reply(display_->get(), xcb_query_keymap(display_->get()), nullptr));
    platform::KeySet down;
    for (std::size_t key = 0; reply && key < down.size(); ++key) {
        down.set(key, ((reply->keys[key / 8] >> (key % 8)) & 1) != 0);
    }
    return down;
}

void XUser::lockGroup(std::uint8_t group) {
    xcb_xkb_latch_lock_state(display_->get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, group, 0, 0, 0);
    settle(*display_);
}

XApplication::XApplication()
    : display_(connect())
    , window_(xcb_generate_id(display_->get())) {
    const std::uint32_t values[] = {1, XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE};
    xcb_create_window(display_->get(), XCB_COPY_FROM_PARENT, window_, display_->root(), 0, 0, 100,
                      100, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(display_->get(), window_);
    xcb_set_input_focus(display_->get(), XCB_INPUT_FOCUS_POINTER_ROOT, window_, XCB_CURRENT_TIME);
    settle(*display_);
}

void XApplication::collect() {
    while (const platform::XcbPointer<xcb_generic_event_t> event{
        xcb_poll_for_event(display_->get())}) {
        if (event->response_type == XCB_KEY_PRESS || event->response_type == XCB_KEY_RELEASE) {
            const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(*event);
            keys_.push_back((event->response_type == XCB_KEY_PRESS ? "+" : "-") +
                            std::to_string(key.detail) + "/" + std::to_string(key.state));
        }
    }
}

std::vector<std::string> XApplication::takeKeys() {
    settle(*display_);
    collect();
    return std::exchange(keys_, {});
}

} // namespace desktop
