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

} // namespace
