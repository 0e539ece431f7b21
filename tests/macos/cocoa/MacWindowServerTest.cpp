#include "platform/macos/MacWindowServer.h"

#include "platform/macos/NativeWindow.h"

#include <QWidget>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using platform::KeyboardFocus;
using platform::Rect;

namespace {

/// What was asked of the native windows; each call notes whether the window was visible.
std::vector<std::string> native;
Rect materialFrame;

void note(const char* what, WId view) {
    const QWidget* const window = QWidget::find(view);
    native.push_back(std::string(what) +
                     (window != nullptr && window->isVisible() ? "" : " early"));
}

} // namespace

namespace platform::nativeWindow {

void makeFloating(WId view) {
    note("floating", view);
}
void orderFront(WId view) {
    note("front", view);
}
void bringToFront(WId view) {
    note("key", view);
}
void setMaterial(WId view, const Rect& frame, const WindowMaterial& material) {
    note("material", view);
    materialFrame = frame;
    EXPECT_EQ(material.material, 13);
}
std::int64_t keyWindowNumber() {
    return 0;
}
void becomeAccessory() {}

} // namespace platform::nativeWindow

namespace {

class MacWindowServerTest : public testing::Test {
protected:
    MacWindowServerTest() { native.clear(); }

    platform::MacWindowServer windowServer;
    QWidget window;
};

TEST_F(MacWindowServerTest, TheBarIsMadeFloatingAnewEachTimeItIsShownAndNeverTakesTheKeyboard) {
    windowServer.makeFloating(window, KeyboardFocus::Never);
    windowServer.setFrame(window, {100, 200, 590, 44});
    QWidget part(&window);
    part.setGeometry(10, 2, 570, 38);
    windowServer.orderFront(window);
    windowServer.setMaterial(part, {13, 0, 10});
    windowServer.orderOut(window);
    EXPECT_FALSE(window.isVisible());
    windowServer.orderFront(window);
    EXPECT_EQ(native,
              (std::vector<std::string>{"floating", "front", "material", "floating", "front"}));
    EXPECT_EQ(materialFrame, (Rect{10, 4, 570, 38}));
    EXPECT_EQ(windowServer.frame(window), (Rect{100, 200, 590, 44}));
    const Qt::WindowFlags flags = window.windowFlags();
    EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Window);
    EXPECT_TRUE(flags & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(window.testAttribute(Qt::WA_TranslucentBackground));
}

TEST_F(MacWindowServerTest, AFloatingWindowThatMayHaveTheKeyboardGetsIt) {
    windowServer.makeFloating(window, KeyboardFocus::WhenInFront);
    windowServer.bringToFront(window, {});
    EXPECT_EQ(native, (std::vector<std::string>{"floating", "key"}));
    EXPECT_FALSE(window.windowFlags() & Qt::WindowDoesNotAcceptFocus);
}

TEST_F(MacWindowServerTest, AnOrdinaryWindowKeepsItsLevel) {
    window.showMinimized();
    windowServer.bringToFront(window, {});
    EXPECT_EQ(native, std::vector<std::string>{"key"});
    EXPECT_FALSE(window.isMinimized());
}

} // namespace
