#pragma once

#include "platform/KeyboardEvents.h"
#include "platform/RunLoop.h"
#include "platform/linux/x11/OwnKeyStrokes.h"
#include "platform/linux/x11/ServerKeyboard.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

class XcbConnection;

/// Posts keys through the server's test extension, as one chord with the modifiers' own keys.
///
/// A key-down is kept until its key-up comes: only then the whole chord (modifiers down, key down,
/// key up, modifiers up) leaves in a single write, and the server is kept handling it even when
/// this program is killed. Holding the server with a grab would not do that: it ends with the
/// client, and a client that stopped while holding it would freeze the desktop.
///
/// Modifiers that the user holds would join in the chord. Letting them go on the user's behalf
/// leaves one stuck when the user does so at the same moment, so posting waits for the user, and
/// gives up with a log line. So it does while the application that the keys are meant for does not
/// have the keyboard: in another window they might do anything.
class XTestKeyboardEvents final : public KeyboardEvents {
public:
    /// Releases posted keys that some earlier program left down. `runLoop` and `connection` outlive
    /// this object; `ownStrokes` learns what is posted on `connection`. `isTargetInFront` says
    /// whether keys would reach whom they are meant for.
    XTestKeyboardEvents(XcbConnection& connection, RunLoop& runLoop, OwnKeyStrokes& ownStrokes,
                        std::function<bool()> isTargetInFront);

    std::unique_ptr<EventSource> createSource(EventSourceState state) override;

    /// Null for a key that this keyboard has no place for, and where keys cannot be posted at all.
    std::unique_ptr<KeyEvent> createKeyEvent(const EventSource* source, KeyCode key,
                                             KeyDirection direction) override;

    /// Blocks for up to half a second while the user holds modifiers or the target is not in front.
    void post(const KeyEvent& event, EventTap tap) override;

private:
    struct Shortcut {
        KeyCode key = 0;
        std::uint64_t flags = 0;
    };

    void postShortcut(const Shortcut& shortcut);
    void send(const std::vector<KeyStroke>& strokes);
    void releaseStaleKeys();

    XcbConnection& connection_;
    RunLoop& runLoop_;
    OwnKeyStrokes& ownStrokes_;
    std::function<bool()> isTargetInFront_;
    ServerKeyboard keyboard_;
    /// The key-down whose key-up has not been posted yet.
    std::optional<Shortcut> pending_;
};

} // namespace platform
