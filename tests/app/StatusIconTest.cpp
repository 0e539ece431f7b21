#include "app/StatusIcon.h"

#include "fakes/FakePlatform.h"

#include <QApplication>
#include <QPalette>
#include <gtest/gtest.h>

namespace {

QColor colourInTheMiddle(const QIcon& icon, int side) {
    const QImage image = icon.pixmap(side, side).toImage();
    return image.pixelColor(image.rect().center());
}

} // namespace

TEST(StatusIcon, IsDrawnInTheTextColourOfTheMoment) {
    fakes::FakePlatform fakes;
    const QIcon icon = app::statusIcon(fakes.symbols, QStringLiteral("textformat.alt"));
    const QPalette before = QApplication::palette();
    for (const QColor& colour : {QColor(20, 30, 40), QColor(240, 230, 220)}) {
        QPalette palette = before;
        palette.setColor(QPalette::WindowText, colour);
        QApplication::setPalette(palette);
        EXPECT_EQ(colourInTheMiddle(icon, 22), colour);
    }
    QApplication::setPalette(before);
}

TEST(StatusIcon, OffersTheSizesOfPanelsAndFillsEachOfThem) {
    fakes::FakePlatform fakes;
    const QIcon icon = app::statusIcon(fakes.symbols, QStringLiteral("textformat.alt"));
    EXPECT_TRUE(icon.isMask());
    EXPECT_TRUE(icon.availableSizes().contains(QSize(22, 22)));
    for (const QSize size : icon.availableSizes()) {
        const QImage image = icon.pixmap(size).toImage();
        EXPECT_EQ(image.size(), size);
        EXPECT_GT(image.pixelColor(1, size.height() / 2).alpha(), 0);
    }
}

