#include "XWindowsFixture.h"

#include <QWidget>

namespace desktop {

namespace {

class BringToFrontTest : public XWindowsTest {
protected:
    BringToFrontTest() { window.resize(200, 100); }

    xcb_window_t id() const { return static_cast<xcb_window_t>(window.winId()); }

    /// Whether the window has the keyboard and no other lies above it.
    bool comesToFront() {
        return eventually([&] {
            const auto all =
                windows.properties().windows(connection->root(), "_NET_CLIENT_LIST_STACKING");
            return windows.activeWindow().current() == id() && window.isActiveWindow() &&
                   !all.empty() && all.back() == id();
        });
    }

    QWidget window;
};

} // namespace

TEST_F(BringToFrontTest, BeforeWhateverApplicationTheUserIsIn) {
    for (int time = 0; time < 3; ++time) {
        // A new window at first, then one that lies behind, then one that was put away.
        const auto notes = installed({0, 0, 600, 400});
        ASSERT_TRUE(waitForActive(*notes));
        if (time == 2) {
            window.showMinimized();
            ASSERT_TRUE(eventually([&] { return window.isMinimized(); }));
        }
        windowServer.bringToFront(window, {});
        EXPECT_TRUE(comesToFront()) << "the time after " << time << " others";
    }
}

TEST_F(BringToFrontTest, AWindowThatWasClosedComesBack) {
    windowServer.bringToFront(window, {});
    ASSERT_TRUE(comesToFront());
    window.close();
    const auto notes = installed();
    ASSERT_TRUE(waitForActive(*notes));
    windowServer.bringToFront(window, {});
    EXPECT_TRUE(comesToFront());
}

TEST_F(BringToFrontTest, AnOldTokenDoesItTooAndEndsTheBusyPointer) {
    // The desktop listens on the root window for a text in pieces that a zero ends.
    const auto desktop = platform::XcbConnection::open();
    std::string said;
    const auto listening = desktop->addEventHandler([&](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) == XCB_CLIENT_MESSAGE) {
            const auto& piece = reinterpret_cast<const xcb_client_message_event_t&>(event);
            EXPECT_EQ(piece.type == desktop->atom("_NET_STARTUP_INFO_BEGIN"), said.empty());
            said.append(reinterpret_cast<const char*>(piece.data.data8), sizeof piece.data.data8);
        }
    });
    desktop->addRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE);
    desktop->serverTime(); // from here on the server sends them

    const auto notes = installed();
    ASSERT_TRUE(waitForActive(*notes));
    const QString token = QStringLiteral("a launcher with a rather long name/42_TIME1");
    windowServer.bringToFront(window, {token, {}});
    EXPECT_TRUE(comesToFront());
    EXPECT_TRUE(eventually([&] { return said.find('\0') != std::string::npos; }));
    EXPECT_EQ(said.c_str(), "remove: ID=\"" + token.toStdString() + "\"");
}

TEST_F(BringToFrontTest, WithoutManagerTheWindowGetsTheKeyboard) {
    const auto notes = installed();
    notes->focus();
    windowServer.bringToFront(window, {});
    EXPECT_TRUE(eventually([&] { return window.isActiveWindow(); }));
}

} // namespace desktop
