#include "XWindowsFixture.h"

#include "platform/linux/x11/XCompositeScreenCapture.h"

namespace desktop {

namespace {

using platform::PixelRect;

/// A plain rectangle above all windows that are there already; nobody puts a frame around it.
class Plain {
public:
    Plain(platform::XcbDisplay& display, PixelRect frame, std::uint32_t pixel, bool visible = true)
        : display_(display)
        , window_(xcb_generate_id(display.get())) {
        auto* connection = display.get();
        const std::uint32_t values[] = {pixel, 1};
        xcb_create_window(
            connection, XCB_COPY_FROM_PARENT, window_, display.root(), static_cast<std::int16_t>(frame.x),
            static_cast<std::int16_t>(frame.y), static_cast<std::uint16_t>(frame.width),
            static_cast<std::uint16_t>(frame.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
            XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
        if (visible) {
            xcb_map_window(connection, window_);
        }
        settle(display);
    }
    ~Plain() {
        xcb_destroy_window(display_.get(), window_);
        settle(display_);
    }

    xcb_window_t id() const { return window_; }

private:
    platform::XcbDisplay& display_;
    xcb_window_t window_;
};

constexpr std::uint32_t red = 0xff0000;
constexpr std::uint32_t green = 0x00ff00;
constexpr std::uint32_t blue = 0x0000ff;
constexpr std::uint32_t white = 0xffffff;

class ScreenCaptureTest : public XWindowsTest {
protected:
    void SetUp() override {
        // The window manager takes its time with the frames of an earlier test's windows.
        ASSERT_TRUE(eventually([&] { return capture.pictureBelow(0).isNull(); }))
            << "an empty screen";
    }

    static bool hasColor(const QImage& image, QRgb color) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == color) {
                    return true;
                }
            }
        }
        return false;
    }

    platform::XCompositeScreenCapture capture;
};

TEST_F(ScreenCaptureTest, ShowsWhatIsBelowAWindowWholeAndNothingElse) {
    const Plain back(*applications, {100, 100, 200, 150}, red);
    const Plain front(*applications, {200, 150, 300, 200}, green);
    const Plain hidden(*applications, {0, 0, 50, 50}, blue, false);
    const Plain form(*applications, {20, 20, 500, 300}, white);
    const Plain above(*applications, {120, 120, 40, 40}, blue);

    const QImage picture = capture.pictureBelow(form.id());
    ASSERT_EQ(picture.size(), QSize(400, 250)) << "no more than the two windows cover";
    EXPECT_EQ(picture.pixel(30, 30), 0xffff0000U);
    EXPECT_EQ(picture.pixel(150, 100), 0xff00ff00U) << "where both are";
    EXPECT_EQ(picture.pixel(399, 249), 0xff00ff00U);
    EXPECT_EQ(qAlpha(picture.pixel(10, 240)), 0) << "where neither is";
    EXPECT_FALSE(hasColor(picture, 0xffffffff) || hasColor(picture, 0xff0000ff));

    const QImage everything = capture.pictureBelow(0);
    EXPECT_TRUE(hasColor(everything, 0xffffffff) && hasColor(everything, 0xff0000ff));
    EXPECT_TRUE(capture.pictureBelow(back.id()).isNull()) << "nothing is below the lowest";
    EXPECT_TRUE(capture.pictureBelow(0x7fffff).isNull()) << "there is no such window";
}

// The test is the manager, one of those that keep everything mapped.
TEST_F(ScreenCaptureTest, LeavesOutWhatTheUserHasPutAwayWithoutManagerThatUnmapsIt) {
    const Plain minimised(*applications, {0, 0, 100, 100}, red);
    const Plain elsewhere(*applications, {100, 0, 100, 100}, red);
    const Plain everywhere(*applications, {200, 0, 100, 100}, green);
    const Plain here(*applications, {300, 0, 100, 100}, green);
    const auto set = [&](xcb_window_t window, const char* property, xcb_atom_t type,
                         const std::vector<std::uint32_t>& values) {
        setNumbers(*applications, window, property, type, values);
    };
    set(minimised.id(), "_NET_WM_STATE", XCB_ATOM_ATOM,
        {applications->atom("_NET_WM_STATE_HIDDEN")});
    set(elsewhere.id(), "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, {1});
    set(everywhere.id(), "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, {0xffffffff});
    set(here.id(), "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, {0});
    const xcb_window_t root = applications->root();
    set(root, "_NET_CURRENT_DESKTOP", XCB_ATOM_CARDINAL, {0});
    set(root, "_NET_CLIENT_LIST", XCB_ATOM_WINDOW,
        {minimised.id(), elsewhere.id(), everywhere.id(), here.id()});

    const QImage picture = capture.pictureBelow(0);
    EXPECT_EQ(picture.size(), QSize(200, 100));
    EXPECT_FALSE(hasColor(picture, 0xffff0000));
    for (const char* property : {"_NET_CURRENT_DESKTOP", "_NET_CLIENT_LIST"}) {
        xcb_delete_property(applications->get(), root, applications->atom(property));
    }
    settle(*applications);
}

} // namespace

} // namespace desktop
