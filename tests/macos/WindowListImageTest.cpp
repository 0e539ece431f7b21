#include "platform/macos/WindowListImage.h"

#include "macos/fakes/c/ImagesFake.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class WindowListImageTest : public testing::Test {
protected:
    WindowListImageTest() {
        screen = {};
        screen.width = 3;
        screen.pixels = {{0, 0, 255, 255}, {0, 255, 0, 255}, {255, 0, 0, 255},
                         {0, 0, 0, 0},     {0, 0, 64, 128},  {255, 255, 255, 255}};
    }
    ~WindowListImageTest() override { EXPECT_EQ(appleFake::liveObjects(), 0); }

    appleFake::Images& screen = appleFake::images();
};

TEST_F(WindowListImageTest, ShowsWhatIsBelowTheWindowPixelForPixel) {
    const QImage picture = platform::windowListImageBelow(77);
    ASSERT_EQ(picture.size(), QSize(3, 2));
    // Premultiplied, as they were.
    const std::vector<QRgb> expected{qRgba(255, 0, 0, 255), qRgba(0, 255, 0, 255),
                                     qRgba(0, 0, 255, 255), qRgba(0, 0, 0, 0),
                                     qRgba(64, 0, 0, 128),  qRgba(255, 255, 255, 255)};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(picture.pixel(i % 3, i / 3), expected[static_cast<std::size_t>(i)]) << i;
    }

    ASSERT_EQ(screen.captures.size(), 1U);
    const auto& asked = screen.captures.front();
    EXPECT_EQ(asked.window, 77U);
    EXPECT_EQ(asked.listOption, 4U);
    EXPECT_EQ(asked.imageOption, 1U);
    EXPECT_TRUE(std::isinf(asked.bounds.origin.x) && std::isinf(asked.bounds.origin.y));
    EXPECT_EQ(asked.bounds.size.width, 0);
}

TEST_F(WindowListImageTest, IsNullWithoutAPictureOrAPlaceForIt) {
    screen.contextCanBeMade = false;
    EXPECT_TRUE(platform::windowListImageBelow(0).isNull());
    screen = {};
    EXPECT_TRUE(platform::windowListImageBelow(0).isNull());
}

} // namespace
