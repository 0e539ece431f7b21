#include "XKeyboardFixture.h"

#include <QDeadlineTimer>

#include <csignal>
#include <numeric>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace desktop {

namespace flags = platform::modifierFlags;

namespace {

/// Another run of the program, which posts shortcuts until it is killed. It tells the number of a
/// window first: once that is gone, the server has handled all that the run has sent.
[[noreturn]] void postForever(int started) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const auto connection = platform::XcbConnection::open();
    fakes::VirtualRunLoop runLoop;
    platform::OwnKeyStrokes strokes;
    platform::XTestKeyboardEvents keyboard(*connection, runLoop, strokes, [] { return true; });
    const xcb_window_t window = xcb_generate_id(connection->get());
    xcb_create_window(connection->get(), XCB_COPY_FROM_PARENT, window, connection->root(), 0, 0, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    settle(*connection);
    if (write(started, &window, sizeof window) != sizeof window) {
        _exit(1);
    }
    for (;;) {
        postShortcut(keyboard, 11, flags::mask);
    }
}

} // namespace

class XTestKeyboardEventsTest : public XKeyboardTest {
protected:
    /// Waits until the server has let go of the client that made that window, 10 s at most.
    bool waitUntilGone(xcb_window_t window) {
        const QDeadlineTimer limit(10'000);
        auto& display = user.display();
        while (display.reply<xcb_get_geometry_reply_t>(xcb_get_geometry(display.get(), window))) {
            if (limit.hasExpired()) {
                return false;
            }
        }
        return true;
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

TEST_F(XTestKeyboardEventsTest, NothingReachesAWindowThatTheKeysAreNotMeantFor) {
    isTargetInFront = [] { return false; };
    testing::internal::CaptureStdout();
    post(11, flags::command);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Quillet: shortcut not posted — the application is not in front\n");
    EXPECT_EQ(application.takeKeys(), Keys());
    EXPECT_NEAR(std::accumulate(runLoop.sleeps.begin(), runLoop.sleeps.end(), 0.0), 0.5, 0.02);

    // One that comes late gets them.
    isTargetInFront = [looks = 0]() mutable { return ++looks > 20; };
    post(11, flags::command);
    EXPECT_EQ(application.takeKeys(), (Keys{"+37/0", "+56/4", "-56/4", "-37/4"}));
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

TEST_F(XTestKeyboardEventsTest, ReleasesAtTheStartWhatAnEarlierProgramLeftDown) {
    {
        XUser dead;
        dead.press(leftControl);
        dead.press(keyB);
    }
    ASSERT_EQ(user.keysDown(), platform::KeySet().set(leftControl).set(keyB));
    const platform::XTestKeyboardEvents next(*connection, runLoop, ownStrokes, [] { return true; });
    settle(*connection);
    EXPECT_TRUE(user.keysDown().none());
}

TEST_F(XTestKeyboardEventsTest, AProgramKilledInMidChordLeavesNoKeyDown) {
    for (std::size_t round = 0; round < 15; ++round) {
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        const pid_t program = fork();
        if (program == 0) {
            postForever(ends[1]);
        }
        close(ends[1]);
        xcb_window_t window = XCB_WINDOW_NONE;
        ASSERT_EQ(read(ends[0], &window, sizeof window), ssize_t{sizeof window});
        close(ends[0]);
        // Some moment of some chord: another one in every round.
        ASSERT_TRUE(application.waitForKeys(1 + round * 3));
        kill(program, SIGKILL);
        ASSERT_EQ(waitpid(program, nullptr, 0), program);
        ASSERT_TRUE(waitUntilGone(window));
        ASSERT_TRUE(user.keysDown().none()) << "round " << round;
        application.takeKeys();
    }
}

} // namespace desktop
