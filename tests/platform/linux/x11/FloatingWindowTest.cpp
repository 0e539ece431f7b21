#include "XWindowsFixture.h"

#include <QGuiApplication>
#include <QProcess>
#include <QPushButton>
#include <QScreen>

#include <cmath>
#include <limits>

namespace desktop {

namespace {

using platform::PixelRect;
using platform::Rect;

xcb_window_t inputFocus(platform::XcbDisplay& display) {
    const auto focus =
        display.reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(display.get()));
    return focus ? focus->focus : xcb_window_t{XCB_WINDOW_NONE};
}

/// Two screens in place of one, for as long as this object lives.
class TwoScreens {
public:
    TwoScreens() {
        run({QStringLiteral("--setmonitor"), QStringLiteral("left"),
             QStringLiteral("640/160x800/200+0+0"), QStringLiteral("screen")});
        run({QStringLiteral("--setmonitor"), QStringLiteral("right"),
             QStringLiteral("640/160x800/200+640+0"), QStringLiteral("none")});
    }
    ~TwoScreens() {
        run({QStringLiteral("--delmonitor"), QStringLiteral("right")});
        run({QStringLiteral("--delmonitor"), QStringLiteral("left")});
        EXPECT_TRUE(eventually([] { return QGuiApplication::screens().size() == 1; }));
    }

private:
    static void run(const QStringList& arguments) {
        EXPECT_EQ(QProcess::execute(QStringLiteral("xrandr"), arguments), 0);
    }
};

class FloatingWindowTest : public XWindowsTest {
protected:
    FloatingWindowTest() {
        button.setGeometry(0, 0, 100, 30);
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { ++clicks; });
        windowServer.makeFloating(bar, platform::KeyboardFocus::Never);
    }

    PixelRect shownAt() {
        return windows.properties().clientArea(static_cast<xcb_window_t>(bar.winId())).value();
    }

    double ratio() const { return qGuiApp->devicePixelRatio(); }

    QWidget bar;
    QPushButton button{QStringLiteral("Bold"), &bar};
    int clicks = 0;
};

} // namespace

TEST_F(FloatingWindowTest, IsShownAndClickedWithoutTakingTheKeyboard) {
    const auto notes = installed({0, 0, 600, 400});
    ASSERT_TRUE(waitForFrontmost(installedProcess));
    const auto focus = inputFocus(*applications);
    const double height = screens.screens().front().frame.height;
    const Rect frame{40, height - 100, 100, 30};
    windowServer.setFrame(bar, frame);
    windowServer.orderFront(bar);
    ASSERT_TRUE(eventually([&] { return bar.isVisible() && bar.screen() != nullptr; }));
    EXPECT_EQ(windowServer.frame(bar), frame);
    EXPECT_EQ(windowServer.frameOnScreen(button), frame);
    const auto pixels = windows.pixelGeometry().pixels(frame);
    EXPECT_TRUE(eventually([&] { return shownAt() == pixels; }));

    user.movePointer(static_cast<std::int16_t>(pixels.x + 20),
                     static_cast<std::int16_t>(pixels.y + 10));
    EXPECT_TRUE(eventually([&] {
        user.click(1);
        return clicks > 0;
    }));
    const auto pointer = screens.pointerLocation();
    EXPECT_NEAR(pointer.x, 40 + 20 / ratio(), 1e-9);
    EXPECT_NEAR(pointer.y, height - 70 - 10 / ratio(), 1e-9);
    EXPECT_EQ(inputFocus(*applications), focus);
    EXPECT_EQ(frontmostProcess(), installedProcess);

    windowServer.orderOut(bar);
    windowServer.setFrame(bar, {60, height - 200, 100, 30});
    windowServer.orderFront(bar);
    EXPECT_TRUE(eventually([&] {
        return shownAt() == windows.pixelGeometry().pixels({60, height - 200, 100, 30});
    }));
    EXPECT_EQ(inputFocus(*applications), focus);
}

TEST_F(FloatingWindowTest, TakesTheKeyboardWhereItIsPutWhenItMayHaveIt) {
    QWidget panel;
    windowServer.makeFloating(panel, platform::KeyboardFocus::WhenInFront);
    const auto notes = installed({0, 0, 600, 400});
    ASSERT_TRUE(waitForFrontmost(installedProcess));
    const Rect frame{70, 90, 160, 120};
    windowServer.setFrame(panel, frame);
    windowServer.bringToFront(panel, {});
    EXPECT_TRUE(eventually([&] { return inputFocus(*applications) == panel.winId(); }));
    EXPECT_TRUE(eventually([&] {
        return windows.properties().clientArea(static_cast<xcb_window_t>(panel.winId())) ==
               windows.pixelGeometry().pixels(frame);
    }));
    windowServer.orderOut(panel);
    EXPECT_TRUE(waitForFrontmost(installedProcess));
}

TEST_F(FloatingWindowTest, FramesThatAreNoneDoNoHarm) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    for (const Rect& frame : {Rect{nan, nan, nan, nan}, Rect{infinite, -infinite, 660, 44},
                              Rect{1e300, -1e300, 1e300, -44}, Rect{0, 0, 0, 0}}) {
        windowServer.setFrame(bar, frame);
        windowServer.orderFront(bar);
        EXPECT_TRUE(eventually([&] { return shownAt().width > 0; }));
        EXPECT_TRUE(std::isfinite(windowServer.frame(bar).x));
    }
}

TEST_F(FloatingWindowTest, LandsOnTheScreenThatItIsGivenAmongSeveral) {
    const TwoScreens both;
    ASSERT_TRUE(eventually([&] { return screens.screens().size() == 2; }));
    const auto left = screens.screens()[0].frame;
    const auto right = screens.screens()[1].frame;
    EXPECT_EQ(left, (Rect{0, 0, 640 / ratio(), 800 / ratio()}));
    EXPECT_EQ(right, (Rect{640, 0, 640 / ratio(), 800 / ratio()}));
    for (const auto& screen : {right, left, right}) {
        const Rect frame{screen.x + 10, 20, 100, 30};
        windowServer.setFrame(bar, frame);
        windowServer.orderFront(bar);
        const PixelRect expected{static_cast<int>(screen.x + 10 * ratio()),
                                 static_cast<int>(800 - 50 * ratio()),
                                 static_cast<int>(100 * ratio()), static_cast<int>(30 * ratio())};
        EXPECT_TRUE(eventually([&] { return shownAt() == expected; })) << screen.x;
        EXPECT_EQ(windowServer.frame(bar), frame);
    }
}

TEST_F(FloatingWindowTest, PanelsAndTheActiveWindowDecideOnTheScreens) {
    const auto pixels = [&](double number) { return number / ratio(); };
    {
        const XWindow panel(*applications, {.frame = {0, 0, 1280, 40},
                                            .type = "_NET_WM_WINDOW_TYPE_DOCK",
                                            .strut = {0, 0, 40, 0, 0, 0, 0, 0, 0, 1279, 0, 0}});
        EXPECT_TRUE(eventually([&] {
            return screens.screens().front().visibleFrame == Rect{0, 0, pixels(1280), pixels(760)};
        }));
        const TwoScreens both;
        ASSERT_TRUE(eventually([&] { return screens.screens().size() == 2; }));
        EXPECT_EQ(screens.screens()[1].visibleFrame, (Rect{640, 0, pixels(640), pixels(760)}));
        const auto notes = installed({700, 100, 200, 100});
        ASSERT_TRUE(waitForActive(*notes));
        EXPECT_TRUE(eventually([&] { return screens.mainScreen()->frame.x == 640; }));
        const auto terminal = unknown({100, 100, 200, 100});
        ASSERT_TRUE(waitForActive(*terminal));
        EXPECT_TRUE(eventually([&] { return screens.mainScreen()->frame.x == 0; }));
    }
    EXPECT_TRUE(eventually([&] {
        return screens.screens().size() == 1 &&
               screens.screens().front().visibleFrame == screens.screens().front().frame;
    }));
}

TEST_F(FloatingWindowTest, TransparencyNeedsACompositor) {
    EXPECT_FALSE(windowServer.hasTranslucency());
    const XWindow compositor(*applications, {.process = 4000005});
    xcb_set_selection_owner(applications->get(), compositor.id(),
                            applications->atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
    settle(*applications);
    EXPECT_TRUE(windowServer.hasTranslucency());
}

} // namespace desktop
