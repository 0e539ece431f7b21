#include "ui/Theme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using ui::Color;

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
