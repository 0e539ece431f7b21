#include "XKeyboardFixture.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <csignal>
#include <numeric>

namespace desktop {

namespace flags = platform::modifierFlags;

class XTestKeyboardEventsTest : public XKeyboardTest {
protected:
    /// Starts the program that posts shortcuts; answers its window.
    xcb_window_t startSender(QProcess& sender, const QString& mode) {
        sender.start(QCoreApplication::applicationDirPath() + QStringLiteral("/chord_sender"),
                     {mode});
        while (!sender.canReadLine() && sender.waitForReadyRead(10000)) {
        }
        return sender.readLine().trimmed().toUInt();
    }

    /// Waits until the server has let go of the client that made that window, 10 s at most.
    bool waitUntilGone(xcb_window_t window) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 10000) {
            auto* display = user.display().get();
            const platform::XcbPointer<xcb_get_geometry_reply_t> reply(
                xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr));
            if (!reply) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(XTestKeyboardEventsTest, PostsTheModifiersOwnKeysAroundTheKeyAndNothingElse) {
    post(11, flags::command);
    EXPECT_EQ(application.takeKeys(), (Keys{"+37/0", "+56/4", "-56/4", "-37/4"}));
    post(11, flags::command | flags::shift);
    EXPECT_EQ(application.takeKeys(), (Keys{"+37/0", "+50/4", "+56/5", "-56/5", "-50/5", "-37/4"}));
    post(3, flags::control | flags::option);
    EXPECT_EQ(application.takeKeys(),
              (Keys{"+64/0", "+133/8", "+41/72", "-41/72", "-133/72", "-64/8"}));
    EXPECT_TRUE(user.keysDown().none());
    EXPECT_TRUE(runLoop.sleeps.empty());
}

TEST_F(XTestKeyboardEventsTest, AKeyDownOrAKeyUpAlonePostsNothing) {
    using platform::KeyDirection;
    const auto down = keyboard.createKeyEvent(nullptr, 11, KeyDirection::Down);
    const auto up = keyboard.createKeyEvent(nullptr, 11, KeyDirection::Up);
    const auto upOfAnother = keyboard.createKeyEvent(nullptr, 3, KeyDirection::Up);
    down->setFlags(flags::command);
    keyboard.post(*up, platform::EventTap::Hid);
    keyboard.post(*down, platform::EventTap::Hid);
    keyboard.post(*upOfAnother, platform::EventTap::Hid);
    keyboard.post(*up, platform::EventTap::Hid);
    keyboard.post(*down, platform::EventTap::Hid);
    settle(*connection);
    EXPECT_EQ(application.takeKeys(), Keys{});
    EXPECT_TRUE(user.keysDown().none());
    EXPECT_EQ(keyboard.createKeyEvent(nullptr, 0xffff, KeyDirection::Down), nullptr);
}

TEST_F(XTestKeyboardEventsTest, GivesUpAfterHalfASecondWhileTheUserHoldsAModifier) {
    for (const auto held : {leftShift, rightControl, leftAlt, leftSuper}) {
        runLoop.sleeps.clear();
        user.press(held);
        application.takeKeys();
        testing::internal::CaptureStdout();
        post(11, flags::command);
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
                  "Quillet: shortcut not posted — modifier keys are held\n");
        EXPECT_EQ(application.takeKeys(), Keys{});
        EXPECT_EQ(user.keysDown(), platform::KeySet().set(held));
        EXPECT_NEAR(std::accumulate(runLoop.sleeps.begin(), runLoop.sleeps.end(), 0.0), 0.5, 0.02);
        user.release(held);
    }
}

TEST_F(XTestKeyboardEventsTest, PostsAsSoonAsTheUserHasLetTheModifiersGo) {
    user.press(leftShift);
    application.takeKeys();
    runLoop.duringSleep = [&] {
        if (runLoop.sleeps.size() == 20) {
            user.release(leftShift);
        }
    };
    post(11, flags::command);
    EXPECT_EQ(application.takeKeys(), (Keys{"-50/1", "+37/0", "+56/4", "-56/4", "-37/4"}));
    EXPECT_EQ(runLoop.sleeps.size(), 20U);
}

TEST_F(XTestKeyboardEventsTest, CapsLockAndNumLockDoNoHarm) {
    user.tap(capsLock);
    user.tap(numLock);
    ASSERT_EQ(user.lockedModifiers(), XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2);
    application.takeKeys();
    post(11, flags::command);
    EXPECT_EQ(application.takeKeys(), (Keys{"+37/18", "+56/22", "-56/22", "-37/22"}));
    user.tap(capsLock);
    user.tap(numLock);
    EXPECT_EQ(user.lockedModifiers(), 0);
}

TEST_F(XTestKeyboardEventsTest, FollowsTheLayoutAndTheGroupOfTheMoment) {
    const auto keyPressedFor = [&](platform::KeyCode key) {
        application.takeKeys();
        post(key, 0);
        const Keys keys = application.takeKeys();
        return keys.empty() ? std::string() : keys.front().substr(0, 3);
    };
    run(QStringLiteral("setxkbmap"), {QStringLiteral("fr")});
    EXPECT_EQ(keyPressedFor(12), "+" + std::to_string(keyA));
    run(QStringLiteral("setxkbmap"), {QStringLiteral("us,de")});
    EXPECT_EQ(keyPressedFor(6), "+" + std::to_string(keyZ));
    user.lockGroup(1);
    EXPECT_EQ(keyPressedFor(6), "+29");
    user.lockGroup(0);
    run(QStringLiteral("setxkbmap"), {QStringLiteral("us")});
    EXPECT_EQ(keyPressedFor(12), "+" + std::to_string(keyQ));
}

TEST_F(XTestKeyboardEventsTest, NeverPressesModifiersThatSwitchTheLayout) {
    const auto set = [](const QString& option) {
        run(QStringLiteral("setxkbmap"),
            {QStringLiteral("us,ru"), QStringLiteral("-option"), option});
    };
    set(QStringLiteral("grp:lctrl_lshift_toggle"));
    post(11, flags::command | flags::shift);
    EXPECT_EQ(application.takeKeys(), (Keys{"+37/0", "+62/4", "+56/5", "-56/5", "-62/5", "-37/4"}));
    run(QStringLiteral("setxkbmap"), {QStringLiteral("-option"), QString()});
    set(QStringLiteral("grp:ctrl_shift_toggle"));
    testing::internal::CaptureStdout();
    post(11, flags::command | flags::shift);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Quillet: shortcut not posted — the keyboard layout has no keys for it\n");
    EXPECT_EQ(application.takeKeys(), Keys{});
    run(QStringLiteral("setxkbmap"), {QStringLiteral("us"), QStringLiteral("-option"), QString()});
}

TEST_F(XTestKeyboardEventsTest, ReleasesAtTheStartWhatAnEarlierProgramLeftDown) {
    {
        XUser dead;
        dead.press(leftControl);
        dead.press(keyB);
    }
    ASSERT_EQ(user.keysDown(), platform::KeySet().set(leftControl).set(keyB));
    const platform::XTestKeyboardEvents next(*connection, runLoop, ownStrokes);
    settle(*connection);
    EXPECT_TRUE(user.keysDown().none());
}

TEST_F(XTestKeyboardEventsTest, AProgramKilledInMidChordLeavesNoKeyDown) {
    constexpr int rounds = 15;
    for (int round = 0; round < rounds; ++round) {
        QProcess once;
        const auto window = startSender(once, QStringLiteral("once"));
        ASSERT_NE(window, 0U);
        ASSERT_TRUE(once.waitForFinished(10000));
        ASSERT_TRUE(waitUntilGone(window));
        ASSERT_TRUE(user.keysDown().none()) << "after its only chord, round " << round;

        QProcess many;
        const auto otherWindow = startSender(many, QStringLiteral("many"));
        ASSERT_NE(otherWindow, 0U);
        // Some moment of some chord: another one in every round.
        ASSERT_TRUE(application.waitForKeys(static_cast<std::size_t>(1 + round * 3)));
        ::kill(static_cast<pid_t>(many.processId()), SIGKILL);
        ASSERT_TRUE(many.waitForFinished(10000));
        ASSERT_TRUE(waitUntilGone(otherWindow));
        ASSERT_TRUE(user.keysDown().none()) << "amid many chords, round " << round;
        application.takeKeys();
    }
}

} // namespace desktop
