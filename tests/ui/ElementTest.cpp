#include "fakes/FakePlatform.h"
#include "ui/Button.h"
#include "ui/HostingView.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/Stack.h"

#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

namespace {

using ui::Color;

const QString inner = QStringLiteral("inner");

ui::Fill plain(QColor color) {
    return [color](const QPalette&) { return color; };
}

QColor pixel(QWidget& widget, QPoint point) {
    return widget.grab().toImage().pixelColor(point);
}

class Elements : public testing::Test {
protected:
    fakes::FakePlatform fake_;
};

TEST_F(Elements, ModifiersWorkFromTheInsideOut) {
    ui::HostingView host(
        ui::symbol(QStringLiteral("x"), {.pointSize = 10}) | ui::identifier(inner) |
        ui::padding({.horizontal = 3, .vertical = 1}) | ui::background({}, plain(Qt::red)) |
        ui::padding({.horizontal = 5, .vertical = 5}) | ui::background({}, plain(Qt::blue)) |
        ui::frame({.width = 40, .height = 30}) | ui::background({}, plain(Qt::green)));
    host.resize(60, 60);
    // Of 60: frame 40, then padded symbol and background 26 × 22, then 16 × 12, the symbol 10.
    EXPECT_EQ(pixel(host, {12, 17}), QColor(Qt::green));
    EXPECT_EQ(pixel(host, {18, 20}), QColor(Qt::blue));
    EXPECT_EQ(pixel(host, {23, 25}), QColor(Qt::red));
    const auto* symbol = host.findChild<QWidget*>(inner);
    EXPECT_EQ(QRect(symbol->mapTo(&host, QPoint()), symbol->size()), QRect(25, 25, 10, 10));
}

TEST_F(Elements, LabelsFollowThePalettePaleWhilePressedAndNameTheirButtonsForEveryone) {
    ui::HostingView host(ui::button(ui::symbol(QStringLiteral("a"), {.pointSize = 20}), [] {}) |
                         ui::frame({.width = 30, .height = 30}) |
                         ui::tooltip(QStringLiteral("Bold")) | ui::identifier(inner));
    host.resize(30, 30);
    QPalette palette = host.palette();
    palette.setColor(QPalette::WindowText, Qt::red);
    palette.setColor(QPalette::Window, Qt::white);
    host.setPalette(palette);
    EXPECT_EQ(pixel(host, {15, 15}), QColor(Qt::red));

    auto* button = host.findChild<QWidget*>(inner);
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Bold"));
    EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_GT(pixel(host, {15, 15}).green(), 60);
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_EQ(pixel(host, {15, 15}), QColor(Qt::red));
}

TEST_F(Elements, AGradientRunsFromTheLeadingToTheTrailingEdge) {
    ui::HostingView host(
        ui::symbol(QStringLiteral("a"), {.pointSize = 20, .colors = {Color::Red, Color::Purple}}));
    host.resize(20, 20);
    const auto red = ui::color({Color::Red}, host.palette());
    EXPECT_NEAR(pixel(host, {0, 10}).green(), red.green(), 8);
    EXPECT_GT(pixel(host, {19, 10}).blue(), 190);
    host.setLayoutDirection(Qt::RightToLeft);
    EXPECT_NEAR(pixel(host, {19, 10}).green(), red.green(), 8);
}

TEST_F(Elements, HoverEndsWhenTheWindowVanishesUnderThePointer) {
    const auto isHovered = ui::state(false);
    ui::HostingView host(ui::spacer() | ui::frame({.width = 40, .height = 20}) |
                         ui::onHover(isHovered));
    host.resize(100, 40);
    host.show();
    QTest::mouseMove(host.windowHandle(), {5, 20});
    EXPECT_FALSE(isHovered->get());
    QTest::mouseMove(host.windowHandle(), {50, 20});
    EXPECT_TRUE(isHovered->get());
    QTest::mouseMove(host.windowHandle(), {5, 20});
    EXPECT_FALSE(isHovered->get());
    QTest::mouseMove(host.windowHandle(), {50, 20});
    host.hide();
    EXPECT_FALSE(isHovered->get());
}

} // namespace
