#include "platform/linux/x11/XTestKeyboardEvents.h"

#include "core/Log.h"
#include "platform/linux/x11/ConnectionKeeper.h"
#include "platform/linux/x11/ShortcutChord.h"
#include "platform/linux/x11/XcbConnection.h"

#include <xcb/xtest.h>

#include <utility>

namespace platform {

namespace {

constexpr Seconds pollInterval{0.01};
constexpr int mostPolls = 50;

struct XTestKeyEvent final : KeyEvent {
    XTestKeyEvent(KeyCode k, KeyDirection d)
        : key(k)
        , direction(d) {}
    void setFlags(std::uint64_t f) override { flags = f; }

    KeyCode key;
    KeyDirection direction;
    std::uint64_t flags = 0;
};

} // namespace

XTestKeyboardEvents::XTestKeyboardEvents(XcbConnection& connection, RunLoop& runLoop,
                                         OwnKeyStrokes& ownStrokes,
                                         std::function<bool()> isTargetInFront)
    : connection_(connection)
    , runLoop_(runLoop)
    , ownStrokes_(ownStrokes)
    , isTargetInFront_(std::move(isTargetInFront))
    , keyboard_(connection) {
    if (keyboard_.canPost()) {
        releaseStaleKeys();
    } else {
        core::log(u"the X server cannot post keys");
    }
}

std::unique_ptr<EventSource> XTestKeyboardEvents::createSource(EventSourceState) {
    return std::make_unique<EventSource>();
}

std::unique_ptr<KeyEvent> XTestKeyboardEvents::createKeyEvent(const EventSource*, KeyCode key,
                                                              KeyDirection direction) {
    if (!keyboard_.canPost() || !scanCode(key)) {
        return nullptr;
    }
    return std::make_unique<XTestKeyEvent>(key, direction);
}

void XTestKeyboardEvents::post(const KeyEvent& event, EventTap) {
    const auto& keyEvent = static_cast<const XTestKeyEvent&>(event);
    const auto begun = std::exchange(pending_, std::nullopt);
    switch (keyEvent.direction) {
    case KeyDirection::Down:
        pending_ = Shortcut{keyEvent.key, keyEvent.flags};
        break;
    case KeyDirection::Up:
        if (begun && begun->key == keyEvent.key) {
            postShortcut(*begun);
        }
        break;
    }
}

void XTestKeyboardEvents::postShortcut(const Shortcut& shortcut) {
    Keymap keymap;
    std::optional<ModifierMapping> mapping;
    bool inFront = true;
    for (int polls = 0; polls <= mostPolls;) {
        const auto state = keyboard_.state();
        if (!state) {
            core::log(u"shortcut not posted — the X server does not answer");
            return;
        }
        inFront = isTargetInFront_();
        if (state->modifiersHeld || !inFront) {
            runLoop_.sleep(pollInterval);
            ++polls;
            continue;
        }
        if (keymap && mapping) {
            if (const auto strokes =
                    shortcutChord(keymap, state->group, *mapping, shortcut.key, shortcut.flags)) {
                send(*strokes);
            } else {
                core::log(u"shortcut not posted — the keyboard layout has no keys for it");
            }
            return;
        }
        // Reading these takes a while in which a modifier may go down: the state is asked again.
        mapping = ModifierMapping::read(connection_);
        keymap = keyboard_.postingKeymap();
        if (!keymap || !mapping) {
            core::log(u"shortcut not posted — the X server does not tell its keyboard layout");
            return;
        }
    }
    core::log(inFront ? u"shortcut not posted — modifier keys are held"
                      : u"shortcut not posted — the application is not in front");
}

void XTestKeyboardEvents::send(const std::vector<KeyStroke>& strokes) {
    // With nothing else buffered the strokes fit into one write, and a local socket takes a write
    // of this size whole or not at all.
    xcb_flush(connection_.get());
    const ConnectionKeeper keeper(xcb_get_file_descriptor(connection_.get()));
    for (const auto& [key, direction] : strokes) {
        const std::uint8_t type = direction == KeyDirection::Down ? XCB_KEY_PRESS : XCB_KEY_RELEASE;
        const auto request =
            xcb_test_fake_input(connection_.get(), type, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        ownStrokes_.add(request.sequence, {key, direction});
    }
    xcb_flush(connection_.get());
    // The answer to anything at all tells that the strokes have been handled.
    static_cast<void>(
        connection_.reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(connection_.get())));
}

void XTestKeyboardEvents::releaseStaleKeys() {
    const KeySet down = keyboard_.postedKeysDown();
    std::vector<KeyStroke> releases;
    for (std::size_t key = 0; key < down.size(); ++key) {
        if (down.test(key)) {
            releases.push_back({static_cast<ScanCode>(key), KeyDirection::Up});
        }
    }
    if (!releases.empty()) {
        core::log(u"released keys that an earlier program had left down");
        send(releases);
    }
}

} // namespace platform
