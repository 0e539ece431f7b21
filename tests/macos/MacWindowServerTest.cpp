#include "platform/macos/MacWindowServer.h"

#include "platform/macos/NativeWindow.h"

#include <QWidget>
#include <gtest/gtest.h>

using platform::KeyboardFocus;
using platform::Rect;

namespace {

/// What was asked of the toolkit's windows, which here are not AppKit's; "early" is a window that
/// was not visible yet.
std::vector<std::string> native;
Rect materialFrame;

void note(const std::string& what, WId view) {
    const QWidget* const window = QWidget::find(view);
    native.push_back(what + (window != nullptr && window->isVisible() ? "" : " early"));
}

platform::nativeWindow::PointerHandlers& pointer() {
    static platform::nativeWindow::PointerHandlers handlers{};
    return handlers;
}

} // namespace

namespace platform::nativeWindow {

void makeFloating(WId view) {
    note("floating", view);
}
void followPointer(WId, const PointerHandlers& handlers) {
    pointer() = handlers;
}
void orderFront(WId view) {
    note("front", view);
}
void bringToFront(WId view) {
    note("key", view);
}
void setMaterial(WId view, const Rect& frame, const WindowMaterial& material) {
    note("material " + std::to_string(material.material), view);
    materialFrame = frame;
}
std::int64_t keyWindowNumber() {
    return 0;
}
void becomeAccessory() {
    native.emplace_back("accessory");
}

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
              (std::vector<std::string>{"floating", "front", "material 13", "floating", "front"}));
    EXPECT_EQ(materialFrame, (Rect{10, 4, 570, 38}));
    EXPECT_EQ(windowServer.frame(window), (Rect{100, 200, 590, 44}));
    const Qt::WindowFlags flags = window.windowFlags();
    EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Window);
    EXPECT_TRUE(flags & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(window.testAttribute(Qt::WA_TranslucentBackground));
}

TEST_F(MacWindowServerTest, WhileAnotherApplicationIsActiveTheBarsButtonsAreHovered) {
    windowServer.makeFloating(window, KeyboardFocus::Never);
    windowServer.setFrame(window, {100, 200, 590, 44});
    QWidget bold(&window);
    bold.setGeometry(10, 10, 30, 26);
    QWidget italic(&window);
    italic.setGeometry(40, 10, 30, 26);
    windowServer.orderFront(window);

    pointer().moved(window.winId(), {150, 220});
    EXPECT_TRUE(italic.underMouse());
    pointer().moved(window.winId(), {120, 220});
    EXPECT_TRUE(bold.underMouse());
    EXPECT_FALSE(italic.underMouse());

    pointer().left(window.winId());
    EXPECT_FALSE(bold.underMouse());
    pointer().moved(window.winId(), {120, 220});
    EXPECT_TRUE(bold.underMouse()) << "again";

    windowServer.orderOut(window);
    EXPECT_FALSE(bold.underMouse()) << "the bar went from under the pointer";
}

} // namespace
