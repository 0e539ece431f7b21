#include "ui/FloatingWindow.h"

#include "fakes/FakePlatform.h"
#include "ui/HostingView.h"
#include "ui/Modifiers.h"
#include "ui/Stack.h"

#include <gtest/gtest.h>

namespace {

class FloatingWindows : public testing::Test {
protected:
    fakes::FakePlatform fake_;
    ui::FloatingWindow window_{
        fake_.windowServer,
        ui::Element(std::make_unique<ui::HostingView>(
            ui::spacer() | ui::frame({.width = 60, .height = 20}) |
            ui::background(ui::RoundedRectangle{6}, [](const QPalette&) { return Qt::red; }))),
        ui::RoundedRectangle{10}};

    int alphaAt(int x, int y) {
        QImage picture(window_.size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        window_.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
        return qAlpha(picture.pixel(x, y));
    }
};

TEST_F(FloatingWindows, CutTheirOwnCornersFromWhateverTheyShow) {
    window_.setFrame({0, 0, 40, 20});
    window_.orderFront();
    EXPECT_TRUE(window_.mask().isEmpty());
    EXPECT_EQ(alphaAt(0, 0), 0);
    EXPECT_EQ(alphaAt(39, 19), 0);
    EXPECT_GT(alphaAt(0, 10), 250);
    EXPECT_EQ(alphaAt(20, 0), 255);
}

TEST_F(FloatingWindows, AreOpaqueAndTakeTheShapeOfWhatTheyShowWithoutACompositor) {
    fake_.windowServer.translucency = false;
    window_.setFrame({0, 0, 80, 24});
    window_.orderFront();
    const QRegion shape = window_.mask();
    EXPECT_EQ(shape.boundingRect(), QRect(10, 2, 60, 20));
    EXPECT_FALSE(shape.contains(QPoint(10, 2)));
    EXPECT_TRUE(shape.contains(QPoint(18, 2)));
    // Every pixel that is left has a colour: none shows the black of an empty picture.
    const QImage picture = window_.grab().toImage();
    EXPECT_EQ(picture.pixelColor(13, 3).alpha(), 255);
    EXPECT_GT(picture.pixelColor(11, 4).red(), 128);

    window_.setFrame({0, 0, 100, 30});
    EXPECT_EQ(window_.mask().boundingRect(), QRect(20, 5, 60, 20));

    fake_.windowServer.translucency = true;
    window_.orderFront();
    EXPECT_TRUE(window_.mask().isEmpty());
    EXPECT_EQ(alphaAt(0, 0), 0);
}

} // namespace
