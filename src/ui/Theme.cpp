#include "ui/Theme.h"

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

QColor role(const QPalette& palette, QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role);
}

QColor faded(QColor color, double alpha) {
    color.setAlphaF(static_cast<float>(color.alphaF() * alpha));
    return color;
}

QColor mixed(const QColor& first, const QColor& second, double share) {
    const auto between = [share](float a, float b) {
        return static_cast<float>(a + (b - a) * share);
    };
    return QColor::fromRgbF(between(first.redF(), second.redF()),
                            between(first.greenF(), second.greenF()),
                            between(first.blueF(), second.blueF()));
}

/// What lies below shines through only so far that text on the material stays readable: nothing
/// blurs it.
QColor material(const QPalette& palette, double lightLift, double darkLift, double alpha) {
    const double lift = isDark(palette) ? darkLift : lightLift;
    return faded(mixed(role(palette, QPalette::Window), Qt::white, lift), alpha);
}

/// A component of a colour as the eye takes it, from 0 to 1.
double linear(double component) {
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& first, const QColor& second) {
    const auto [dark, light] = std::minmax({luminance(first), luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}

/// The colour itself, or the shade of it nearest to it on the way to `end` that can be read.
/// `contrastOf` says how well a shade can be read.
template <typename Contrast>
QColor readableShade(const QColor& color, const QColor& end, Contrast contrastOf) {
    constexpr double readable = 4.5;
    constexpr double step = 0.02;
    QColor shade = color;
    for (double share = step; share < 1 && contrastOf(shade) < readable; share += step) {
        shade = mixed(color, end, share);
    }
    return shade;
}

/// A shade on which thin white text can be read.
QColor behindWhiteText(const QColor& color) {
    constexpr double textOpacity = 0.8;
    return readableShade(color, Qt::black, [](const QColor& ground) {
        return contrast(mixed(ground, Qt::white, textOpacity), ground);
    });
}

QColor sectionBackground(const QPalette& palette) {
    return mixed(role(palette, QPalette::Window), Qt::white, isDark(palette) ? 0.05 : 0.55);
}

/// A shade that can be read as text on a section with a tint of the accent over it.
QColor accentText(const QPalette& palette) {
    constexpr double tint = 0.2;
    const QColor accent = role(palette, QPalette::Highlight);
    const QColor ground = mixed(sectionBackground(palette), accent, tint);
    return readableShade(accent, role(palette, QPalette::WindowText),
                         [&](const QColor& text) { return contrast(text, ground); });
}

QColor opaque(Color color, const QPalette& palette) {
    const bool dark = isDark(palette);
    const auto either = [dark](QRgb light, QRgb night) { return QColor(dark ? night : light); };
    switch (color) {
    case Color::Clear:
        return Qt::transparent;
    case Color::Label:
        return role(palette, QPalette::WindowText);
    case Color::SecondaryLabel:
        return mixed(role(palette, QPalette::WindowText), role(palette, QPalette::Window), 0.3);
    case Color::QuaternaryLabel:
        return faded(role(palette, QPalette::WindowText), 0.1);
    case Color::Separator:
        return faded(role(palette, QPalette::WindowText), dark ? 0.24 : 0.25);
    case Color::Accent:
        return role(palette, QPalette::Highlight);
    case Color::AccentText:
        return accentText(palette);
    case Color::OnAccent:
        return role(palette, QPalette::HighlightedText);
    case Color::AccentBehindText:
        return behindWhiteText(role(palette, QPalette::Highlight));
    case Color::White:
        return Qt::white;
    case Color::ControlFace:
        return mixed(role(palette, QPalette::Base), Qt::white, dark ? 0.22 : 1);
    case Color::ControlTrack:
        return faded(role(palette, QPalette::WindowText), dark ? 0.22 : 0.16);
    case Color::ControlKnob:
        return dark ? QColor(0xffe8e8e8) : QColor(Qt::white);
    case Color::ControlBorder:
        return faded(role(palette, QPalette::WindowText), dark ? 0.3 : 0.28);
    case Color::SectionBackground:
        return sectionBackground(palette);
    case Color::TextBackground:
        return role(palette, QPalette::Base);
    case Color::ControlBackground:
        return role(palette, QPalette::Base);
    case Color::WindowBackground:
        return role(palette, QPalette::Window);
    case Color::HudMaterial:
        return material(palette, 0.5, 0.04, 0.98);
    case Color::PopoverMaterial:
        return material(palette, 0.6, 0.06, 0.985);
    case Color::Red:
        return either(0xffe5392f, 0xffff5249);
    case Color::Orange:
        return either(0xfff08a00, 0xffffa01f);
    case Color::Yellow:
        return either(0xffe9b800, 0xffffd426);
    case Color::Green:
        return either(0xff2bb04c, 0xff3bd15f);
    case Color::Blue:
        return either(0xff1677f0, 0xff3b95ff);
    case Color::Purple:
        return either(0xff9c4bd6, 0xffbf6cf5);
    }
    Q_UNREACHABLE();
}

QFont::Weight fontWeight(Weight weight) {
    switch (weight) {
    case Weight::Regular:
        return QFont::Normal;
    case Weight::Medium:
        return QFont::Medium;
    case Weight::Semibold:
        return QFont::DemiBold;
    case Weight::Bold:
        return QFont::Bold;
    }
    Q_UNREACHABLE();
}

} // namespace

bool isDark(const QPalette& palette) {
    return role(palette, QPalette::Window).lightnessF() <
           role(palette, QPalette::WindowText).lightnessF();
}

QColor color(Tint tint, const QPalette& palette) {
    return faded(opaque(tint.color, palette), tint.opacity);
}

QFont font(double pointSize, Weight weight) {
    QFont font;
    font.setPixelSize(std::max(1, qRound(pointSize)));
    font.setWeight(fontWeight(weight));
    return font;
}

} // namespace ui
