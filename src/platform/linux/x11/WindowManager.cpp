#include "platform/linux/x11/WindowManager.h"

#include "platform/linux/x11/WindowProperties.h"

namespace platform {

namespace {
constexpr const char* signProperty = "_NET_SUPPORTING_WM_CHECK";
}

std::optional<xcb_window_t> windowManagerSign(XcbDisplay& display) {
    return WindowProperties(display).singleWindow(display.root(), signProperty);
}

bool isLivingSign(XcbDisplay& display, xcb_window_t sign) {
    return WindowProperties(display).singleWindow(sign, signProperty) == sign;
}

void requestActivation(XcbDisplay& display, xcb_connection_t* over, xcb_window_t window,
                       xcb_timestamp_t time) {
    constexpr std::uint32_t fromTheUser = 2;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = display.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = fromTheUser;
    message.data.data32[1] = time;
    xcb_send_event(over, 0, display.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(over);
}

} // namespace platform
