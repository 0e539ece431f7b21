#include "XKeyboardFixture.h"
#include "platform/linux/x11/XInputEvents.h"
#include "platform/linux/x11/XInputKeyMonitor.h"
#include "platform/linux/x11/XInputPointerMonitor.h"

#include <optional>
#include <utility>

namespace desktop {

namespace flags = platform::modifierFlags;

class WatchingTest : public XKeyboardTest {
protected:
    /// "3:100000" for each key-down since the last call.
    Keys takeKeyDowns() {
        deliver();
        return std::exchange(keyDowns, {});
    }

    void deliver() {
        settle(*connection);
        connection->dispatchEvents();
    }

    core::Registration watchKeys() {
        return keyMonitor.addKeyDownMonitor([this](const platform::KeyDownEvent& event) {
            keyDowns.push_back(QStringLiteral("%1:%2")
                                   .arg(event.keyCode)
                                   .arg(event.modifierFlags, 0, 16)
                                   .toStdString());
        });
    }

    bool ownApplicationIsActive = false;
    Keys keyDowns;
    std::shared_ptr<platform::XInputEvents> events =
        platform::XInputEvents::create(*connection, ownStrokes);
    platform::XInputKeyMonitor keyMonitor{*connection, events,
                                          [this] { return ownApplicationIsActive; }};
    platform::XInputPointerMonitor pointerMonitor{
        *connection, events, [](platform::PixelPoint pixel) {
            return platform::Point{pixel.x + 0.5, pixel.y + 0.5};
        }};
};

TEST_F(WatchingTest, SeesKeysWithTheirModifiersWhileAnotherProgramHoldsAGrab) {
    const auto watch = watchKeys();
    auto* other = application.display().get();
    const platform::XcbPointer<xcb_grab_keyboard_reply_t> grab(
        xcb_grab_keyboard_reply(other,
                                xcb_grab_keyboard(other, 1, application.window(), XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    ASSERT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
    user.tap(keyB);
    user.tap(playKey); // it has no name
    user.press(rightControl);
    user.press(leftControl);
    user.press(leftAlt);
    user.release(rightControl);
    user.tap(keyB);
    user.release(leftControl);
    user.press(leftSuper);
    user.press(rightShift);
    user.tap(escapeKey);
    EXPECT_EQ(takeKeyDowns(), (Keys{"11:0", "11:180000", "53:e0000"}));
}

TEST_F(WatchingTest, OwnShortcutsAreNotTheUsers) {
    const auto watch = watchKeys();
    // The same strokes, through the same device.
    user.press(leftControl);
    user.tap(keyB);
    user.release(leftControl);
    post(11, flags::command);
    user.tap(keyB);
    EXPECT_EQ(takeKeyDowns(), (Keys{"11:100000", "11:0"}));
    EXPECT_EQ(application.takeKeys().size(), 10U);
}

TEST_F(WatchingTest, KeysForThisProgramAreNotReportedButTheirModifiersCount) {
    const auto watch = watchKeys();
    ownApplicationIsActive = true;
    user.press(leftShift);
    user.tap(keyB);
    EXPECT_EQ(takeKeyDowns(), Keys{});
    ownApplicationIsActive = false;
    user.tap(keyB);
    EXPECT_EQ(takeKeyDowns(), Keys{"11:20000"});
}

TEST_F(WatchingTest, DismissesByAPressByEscapeAndByAnotherActiveWindow) {
    Keys dismissals;
    const auto take = [&] {
        deliver();
        return std::exchange(dismissals, {});
    };
    const auto activate = [&](xcb_window_t window) {
        setNumbers(user.display(), user.display().root(), "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW,
                   {window});
    };
    activate(7);
    const auto picker = pointerMonitor.addDismissMonitor([&](const platform::DismissEvent& event) {
        switch (event.reason) {
        case platform::DismissReason::PointerPressed:
            dismissals.push_back(std::to_string(event.location.x) + " " +
                                 std::to_string(event.location.y));
            break;
        case platform::DismissReason::EscapePressed:
            dismissals.emplace_back("escape");
            break;
        case platform::DismissReason::ActiveWindowChanged:
            dismissals.emplace_back("window");
            break;
        }
    });
    user.movePointer(300, 200);
    user.click(XCB_BUTTON_INDEX_1);
    EXPECT_EQ(take(), Keys{"300.500000 200.500000"});
    user.click(XCB_BUTTON_INDEX_4);
    user.tap(keyB);
    activate(7);
    EXPECT_EQ(take(), Keys{});
    user.tap(escapeKey);
    EXPECT_EQ(take(), Keys{"escape"});
    activate(8);
    EXPECT_EQ(take(), Keys{"window"});
}

} // namespace desktop
