#include "platform/macos/ScreenPicture.h"

#include <gtest/gtest.h>

namespace {

QImage plain(int width, int height, Qt::GlobalColor colour) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

TEST(ScreenPictureTest, ShowsWhatTheWindowsCoverOfAllDisplaysAsSharpAsTheSharpest) {
    // The second display stands left of the first one and is twice as sharp.
    platform::ScreenContents contents{{{{0, 0, 100, 50}, plain(100, 50, Qt::red)},
                                       {{-80, 0, 80, 50}, plain(160, 100, Qt::green)}},
                                      {{-10, 20, 30, 10}, {70, 30, 60, 40}}};
    const QImage picture = platform::toPicture(contents);
    // From -10 to 100, the edge of the display, and from 20 to 50, at two pixels a point.
    ASSERT_EQ(picture.size(), QSize(220, 60));
    EXPECT_EQ(picture.pixelColor(19, 0), QColor(Qt::green));
    EXPECT_EQ(picture.pixelColor(20, 59), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(219, 59), QColor(Qt::red));

    contents.windows = {{300, 0, 10, 10}};
    EXPECT_TRUE(platform::toPicture(contents).isNull());
}

} // namespace
