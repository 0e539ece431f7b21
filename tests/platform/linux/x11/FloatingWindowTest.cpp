#include "XWindowsFixture.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QWidget>

#include <cmath>
#include <limits>

namespace desktop {

namespace {

using platform::PixelRect;
using platform::Rect;

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
    FloatingWindowTest() { windowServer.makeFloating(bar, platform::KeyboardFocus::Never); }

    std::optional<PixelRect> shownAt(const QWidget& window) {
        return windows.properties().clientArea(static_cast<xcb_window_t>(window.winId()));
    }

    double ratio() const { return qGuiApp->devicePixelRatio(); }

    QWidget bar;
};

} // namespace

TEST_F(FloatingWindowTest, ThePointerIsToldInPoints) {
    user.movePointer(60, 90);
    const auto pointer = screens.pointerLocation();
    EXPECT_NEAR(pointer.x, 60 / ratio(), 1e-9);
    EXPECT_NEAR(pointer.y, (800 - 90) / ratio(), 1e-9);
}

TEST_F(FloatingWindowTest, TakesTheKeyboardWhereItIsPutWhenItMayHaveIt) {
    QWidget panel;
    windowServer.makeFloating(panel, platform::KeyboardFocus::WhenInFront);
    const auto notes = installed({0, 0, 600, 400});
    ASSERT_TRUE(waitForFrontmost(installedProcess));
    const Rect frame{70, 90, 160, 120};
    windowServer.setFrame(panel, frame);
    windowServer.bringToFront(panel, {});
    EXPECT_TRUE(eventually([&] {
        return panel.isActiveWindow() && shownAt(panel) == windows.pixelGeometry().pixels(frame);
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
        EXPECT_TRUE(eventually([&] { return shownAt(bar) && shownAt(bar)->width > 0; }));
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
        EXPECT_TRUE(eventually([&] { return shownAt(bar) == expected; })) << screen.x;
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
