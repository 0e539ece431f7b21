#pragma once

#include "XUser.h"
#include "fakes/VirtualRunLoop.h"
#include "platform/linux/x11/XTestKeyboardEvents.h"
#include "platform/linux/x11/XcbConnection.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace desktop {

// Scan codes of the positions that the tests speak of.
inline constexpr platform::ScanCode escapeKey = 9;
inline constexpr platform::ScanCode keyQ = 24;
inline constexpr platform::ScanCode leftControl = 37;
inline constexpr platform::ScanCode keyA = 38;
inline constexpr platform::ScanCode leftShift = 50;
inline constexpr platform::ScanCode keyZ = 52;
inline constexpr platform::ScanCode keyB = 56;
inline constexpr platform::ScanCode rightShift = 62;
inline constexpr platform::ScanCode leftAlt = 64;
inline constexpr platform::ScanCode capsLock = 66;
inline constexpr platform::ScanCode numLock = 77;
inline constexpr platform::ScanCode rightControl = 105;
inline constexpr platform::ScanCode leftSuper = 133;
inline constexpr platform::ScanCode playKey = 172;

using Keys = std::vector<std::string>;

inline void postShortcut(platform::KeyboardEvents& keyboard, platform::KeyCode key,
                         std::uint64_t flags) {
    const auto source = keyboard.createSource(platform::EventSourceState::HidSystem);
    const auto down = keyboard.createKeyEvent(source.get(), key, platform::KeyDirection::Down);
    const auto up = keyboard.createKeyEvent(source.get(), key, platform::KeyDirection::Up);
    ASSERT_TRUE(down && up);
    down->setFlags(flags);
    keyboard.post(*down, platform::EventTap::Hid);
    keyboard.post(*up, platform::EventTap::Hid);
}

/// The program's keyboard between a user and an application. Leaves the server as it was.
class XKeyboardTest : public testing::Test {
protected:
    void TearDown() override {
        const platform::KeySet down = user.keysDown();
        for (std::size_t key = 0; key < down.size(); ++key) {
            if (down.test(key)) {
                user.release(static_cast<platform::ScanCode>(key));
            }
        }
    }

    static void run(const QString& program, const QStringList& arguments) {
        ASSERT_EQ(QProcess::execute(program, arguments), 0) << program.toStdString();
    }

    void post(platform::KeyCode key, std::uint64_t flags) {
        postShortcut(keyboard, key, flags);
        settle(*connection);
    }

    XUser user;
    XApplication application;
    std::shared_ptr<platform::XcbConnection> connection = platform::XcbConnection::open();
    fakes::VirtualRunLoop runLoop;
    platform::OwnKeyStrokes ownStrokes;
    std::function<bool()> isTargetInFront = [] { return true; };
    platform::XTestKeyboardEvents keyboard{*connection, runLoop, ownStrokes,
                                           [this] { return isTargetInFront(); }};
};

} // namespace desktop
