#include "platform/linux/x11/XInputPointerMonitor.h"

#include "platform/linux/keyboard/VirtualKeyCodes.h"
#include "platform/linux/x11/XInputEvents.h"
#include "platform/linux/x11/XcbConnection.h"

#include <array>
#include <optional>
#include <utility>

namespace platform {

namespace {

constexpr KeyCode escape = 53;

/// The core protocol turns the wheel into presses of buttons 4 to 7.
bool isWheel(XInputEvents::Button button) {
    return button >= XCB_BUTTON_INDEX_4 && button <= 7;
}

std::optional<PixelPoint> pointerPosition(XcbConnection& connection) {
    const auto reply = connection.reply<xcb_query_pointer_reply_t>(
        xcb_query_pointer(connection.get(), connection.root()));
    return reply ? std::optional(PixelPoint{reply->root_x, reply->root_y}) : std::nullopt;
}

/// Empty when the server does not answer, 0 without an active window.
std::optional<xcb_window_t> activeWindow(XcbConnection& connection, xcb_atom_t property) {
    const auto reply = connection.reply<xcb_get_property_reply_t>(
        xcb_get_property(connection.get(), 0, connection.root(), property, XCB_ATOM_WINDOW, 0, 1));
    if (!reply) {
        return std::nullopt;
    }
    const bool given = reply->format == 32 && xcb_get_property_value_length(reply.get()) == 4;
    return given ? *static_cast<xcb_window_t*>(xcb_get_property_value(reply.get())) : 0;
}

/// Tells of the active window when it is another one than before: some window managers write the
/// same one again.
class ActiveWindowWatch {
public:
    explicit ActiveWindowWatch(XcbConnection& connection)
        : connection_(connection)
        , property_(connection.atom("_NET_ACTIVE_WINDOW")) {
        connection.addRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE);
        window_ = activeWindow(connection, property_);
    }

    bool hasChanged(const xcb_generic_event_t& event) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (event.response_type != XCB_PROPERTY_NOTIFY || change.atom != property_ ||
            change.window != connection_.root()) {
            return false;
        }
        const auto now = activeWindow(connection_, property_);
        return now && std::exchange(window_, now) != now;
    }

private:
    XcbConnection& connection_;
    xcb_atom_t property_;
    std::optional<xcb_window_t> window_;
};

} // namespace

XInputPointerMonitor::XInputPointerMonitor(XcbConnection& connection,
                                           std::shared_ptr<XInputEvents> events,
                                           GlobalPoint globalPoint)
    : connection_(connection)
    , events_(std::move(events))
    , globalPoint_(std::move(globalPoint)) {}

core::Registration XInputPointerMonitor::addDismissMonitor(Handler handler) {
    using Parts = std::array<core::Registration, 3>;
    auto parts = std::make_shared<Parts>();
    if (events_) {
        (*parts)[0] = events_->addButtonHandler(
            [&connection = connection_, globalPoint = globalPoint_, handler](auto button) {
                if (isWheel(button)) {
                    return;
                }
                // The press itself does not say where.
                if (const auto position = pointerPosition(connection)) {
                    handler({DismissReason::PointerPressed, globalPoint(*position)});
                }
            });
        (*parts)[1] = events_->addKeyHandler([handler](KeyStroke stroke) {
            if (stroke.direction == KeyDirection::Down && virtualKeyCode(stroke.key) == escape) {
                handler({DismissReason::EscapePressed, {}});
            }
        });
    }
    (*parts)[2] =
        connection_.addEventHandler([watch = std::make_shared<ActiveWindowWatch>(connection_),
                                     handler](const xcb_generic_event_t& event) {
            if (watch->hasChanged(event)) {
                handler({DismissReason::ActiveWindowChanged, {}});
            }
        });
    return core::Registration([parts] { *parts = Parts(); });
}

} // namespace platform
