#include "platform/macos/NativeWindow.h"

#include "macos/cocoa/AppKitTest.h"

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
}

TEST_F(NativeWindowTest, OneEffectLiesBehindTheContentHoweverOftenItIsAskedFor) {
    nativeWindow::setMaterial(view, {0, 0, 590, 44}, {0, 1, 4});
    nativeWindow::setMaterial(view, {10, 3, 640, 38}, {13, 0, 10});
    constexpr long active = 1;
    EXPECT_EQ(cocoaFake::effectsOf(view),
              (std::vector<cocoaFake::Effect>{{0, 13, 0, active, 10, true, {10, 3, 640, 38}}}));
}

} // namespace
