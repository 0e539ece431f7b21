#include "platform/macos/NativeWindow.h"

#include "macos/cocoa/AppKitTest.h"
#include "macos/fakes/cocoa/ServicesFake.h"

namespace nativeWindow = platform::nativeWindow;

namespace {

class NativeWindowTest : public AppKitTest {
protected:
    ~NativeWindowTest() override { cocoaFake::closeWindow(view); }

    const WId view = cocoaFake::openWindow({100, 200, 590, 44});
};

TEST_F(NativeWindowTest, TheBarIsABareClearWindowAboveOrdinaryOnesOnEveryDesktop) {
    nativeWindow::makeFloating(view);
    const auto& window = cocoaFake::windowOf(view);
    EXPECT_EQ(window.styleMask, 0U);
    EXPECT_EQ(window.level, 3);
    EXPECT_EQ(window.collectionBehavior, 17U);
    EXPECT_TRUE(window.hasShadow);
    EXPECT_EQ(window.shadowsComputed, 1);
    EXPECT_FALSE(window.movable);
    EXPECT_FALSE(window.opaque);
    EXPECT_TRUE(window.clear);
}

TEST_F(NativeWindowTest, ComesToTheFrontWithTheKeyboardOnlyWhenItIsToHaveIt) {
    nativeWindow::orderFront(view);
    EXPECT_TRUE(appKit.forward.empty());
    nativeWindow::bringToFront(view);
    EXPECT_EQ(cocoaFake::windowOf(view).ordered, (std::vector<std::string>{"front", "key"}));
    EXPECT_EQ(appKit.forward, std::vector{true});

    nativeWindow::becomeAccessory();
    EXPECT_EQ(appKit.activationPolicy, 1);
    ASSERT_EQ(cocoaFake::services().activities.size(), 1U);
    EXPECT_EQ(cocoaFake::services().activities.front().first, 0x00EFFFFFULL)
        << "no napping, but the computer may sleep";
}

TEST_F(NativeWindowTest, OneEffectLiesBehindTheContentCutToItsCornersHoweverOftenItIsAskedFor) {
    nativeWindow::setMaterial(view, {0, 0, 590, 44}, {0, 1, 4});
    nativeWindow::setMaterial(view, {-25, 3, 640, 38}, {13, 0, 10});
    constexpr long active = 1;
    EXPECT_EQ(cocoaFake::effectsOf(view),
              (std::vector<cocoaFake::Effect>{
                  {0, 13, 0, active, 10, true, {-25, 3, 640, 38}, {0, 0, 590, 44}, 10}}));
}

TEST_F(NativeWindowTest, ThePointerIsFollowedWhileAnotherApplicationIsActive) {
    static std::vector<std::string> told;
    told.clear();
    const nativeWindow::PointerHandlers handlers{
        [](WId, platform::Point location) { told.push_back(std::to_string(int(location.x))); },
        [](WId) { told.emplace_back("left"); }};
    nativeWindow::followPointer(view, handlers);
    endTurn();
    nativeWindow::followPointer(view, handlers);
    constexpr unsigned long enteredExitedMovedAlwaysInVisibleRect = 0x283;
    EXPECT_EQ(cocoaFake::followed(view), std::vector{enteredExitedMovedAlwaysInVisibleRect});

    appKit.mouseLocation = {5, 6};
    cocoaFake::pointerOver(view, cocoaFake::PointerEvent::Entered);
    appKit.mouseLocation = {7, 6};
    cocoaFake::pointerOver(view, cocoaFake::PointerEvent::Moved);
    cocoaFake::pointerOver(view, cocoaFake::PointerEvent::Exited);
    appKit.isActive = true;
    cocoaFake::pointerOver(view, cocoaFake::PointerEvent::Entered);
    cocoaFake::pointerOver(view, cocoaFake::PointerEvent::Exited);
    EXPECT_EQ(told, (std::vector<std::string>{"5", "7", "left"})) << "the toolkit tells its own";
}

} // namespace
