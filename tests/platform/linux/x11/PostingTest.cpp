#include "XKeyboardFixture.h"

#include <numeric>

namespace desktop {

namespace flags = platform::modifierFlags;

class XTestKeyboardEventsTest : public XKeyboardTest {};

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

} // namespace desktop
