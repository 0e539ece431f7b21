#include "ui/Theme.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using ui::Color;

QPalette palette(QRgb window, QRgb text) {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(window));
    palette.setColor(QPalette::WindowText, QColor(text));
    return palette;
}

double contrast(const QColor& first, const QColor& second) {
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const std::pair lights(luminance(first), luminance(second));
    return (std::max(lights.first, lights.second) + 0.05) /
           (std::min(lights.first, lights.second) + 0.05);
}

TEST(Theme, TextStandsOutFromEveryMaterialInLightAndDark) {
    for (const QPalette& desktop :
         {palette(0xefefef, 0x000000), palette(0xfafafa, 0x2e3436), palette(0x2b2b2e, 0xf2f2f4)}) {
        for (const Color material : {Color::HudMaterial, Color::PopoverMaterial}) {
            const QColor ground = ui::color({material}, desktop);
            EXPECT_GE(contrast(ui::color({Color::Label}, desktop), ground), 7);
            EXPECT_GE(contrast(ui::color({Color::SecondaryLabel}, desktop), ground), 4.5);
        }
    }
}

TEST(Theme, ThinWhiteTextCanBeReadOnTheAccentBehindItWhateverTheDesktopsAccent) {
    QPalette desktop;
    for (const QRgb accent : {0xff308cc6U, 0xff3b95ffU, 0xfff5c211U, 0xffffffffU, 0xff1a2f50U}) {
        desktop.setColor(QPalette::Highlight, QColor(accent));
        const QColor ground = ui::color(Color::AccentBehindText, desktop);
        const auto above = [](float c) { return 0.8F + 0.2F * c; };
        const QColor text =
            QColor::fromRgbF(above(ground.redF()), above(ground.greenF()), above(ground.blueF()));
        EXPECT_GE(contrast(text, ground), 4.5) << accent;
    }
    EXPECT_EQ(ui::color(Color::AccentBehindText, desktop), QColor(0xff1a2f50U));
}

} // namespace
