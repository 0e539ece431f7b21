#include "platform/linux/x11/XInputKeyMonitor.h"

#include "platform/linux/x11/HeldModifiers.h"
#include "platform/linux/x11/XInputEvents.h"
#include "platform/linux/x11/XcbConnection.h"
#include "platform/linux/x11/XcbXkb.h"

#include <span>
#include <utility>

namespace platform {

namespace {

KeySet keysDown(XcbConnection& connection) {
    KeySet down;
    if (const auto reply =
            connection.reply<xcb_query_keymap_reply_t>(xcb_query_keymap(connection.get()))) {
        for (std::size_t key = 0; key < down.size(); ++key) {
            down.set(key, ((reply->keys[key / 8] >> (key % 8)) & 1) != 0);
        }
    }
    return down;
}

/// One handler's watch, kept by its registration.
class Watch {
public:
    Watch(XcbConnection& connection, std::function<bool()> ownApplicationIsActive,
          GlobalKeyMonitor::Handler handler)
        : connection_(connection)
        , ownApplicationIsActive_(std::move(ownApplicationIsActive))
        , handler_(std::move(handler)) {
        // Some servers spare clients that know the keyboard extension the core protocol's word.
        if (const auto* xkb = xcb_get_extension_data(connection.get(), &xcb_xkb_id);
            xkb != nullptr && xkb->present != 0) {
            keyboardEvent_ = xkb->first_event;
            constexpr std::uint16_t changes =
                XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY;
            xcb_xkb_select_events(connection.get(), XCB_XKB_ID_USE_CORE_KBD, changes, 0, changes,
                                  XCB_XKB_MAP_PART_MODIFIER_MAP, XCB_XKB_MAP_PART_MODIFIER_MAP,
                                  nullptr);
        }
    }

    /// The strokes must have been asked for already, or some could fall between.
    void begin() {
        held_ = HeldModifiers(ModifierMapping::read(connection_).value_or(ModifierMapping()),
                              keysDown(connection_));
    }

    void handleEvent(const xcb_generic_event_t& event) {
        if (event.response_type == XCB_MAPPING_NOTIFY || event.response_type == keyboardEvent_) {
            mappingIsStale_ = true;
        }
    }

    void handleStroke(KeyStroke stroke) {
        if (mappingIsStale_) {
            if (auto mapping = ModifierMapping::read(connection_)) {
                held_.setMapping(std::move(*mapping));
                mappingIsStale_ = false;
            }
        }
        const auto keyDown = held_.handle(stroke);
        if (keyDown && !ownApplicationIsActive_()) {
            handler_(*keyDown);
        }
    }

    void keep(core::Registration strokes, core::Registration events) {
        strokes_ = std::move(strokes);
        events_ = std::move(events);
    }

private:
    XcbConnection& connection_;
    std::function<bool()> ownApplicationIsActive_;
    GlobalKeyMonitor::Handler handler_;
    HeldModifiers held_;
    std::optional<std::uint8_t> keyboardEvent_;
    bool mappingIsStale_ = false;
    core::Registration strokes_;
    core::Registration events_;
};

} // namespace

XInputKeyMonitor::XInputKeyMonitor(XcbConnection& connection, std::shared_ptr<XInputEvents> events,
                                   std::function<bool()> ownApplicationIsActive)
    : connection_(connection)
    , events_(std::move(events))
    , ownApplicationIsActive_(std::move(ownApplicationIsActive)) {}

core::Registration XInputKeyMonitor::addKeyDownMonitor(Handler handler) {
    if (!events_) {
        return {};
    }
    auto watch = std::make_shared<Watch>(connection_, ownApplicationIsActive_, std::move(handler));
    // Weak, so that a handler may end its own watch, which the lock then keeps until it returns.
    const std::weak_ptr<Watch> weak = watch;
    watch->keep(events_->addKeyHandler([weak](KeyStroke stroke) {
        if (const auto alive = weak.lock()) {
            alive->handleStroke(stroke);
        }
    }),
                connection_.addEventHandler([weak](const xcb_generic_event_t& event) {
                    if (const auto alive = weak.lock()) {
                        alive->handleEvent(event);
                    }
                }));
    watch->begin();
    return core::Registration([watch]() mutable { watch.reset(); });
}

} // namespace platform
