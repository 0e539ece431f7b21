#pragma once

#include "platform/Symbols.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <concepts>
#include <functional>
#include <utility>

namespace ui {

/// Colours by their meaning. Each follows the desktop's palette, light or dark.
enum class Color {
    Clear,
    Label,
    SecondaryLabel,
    QuaternaryLabel,
    Separator,
    Accent,
    /// Text in the accent colour, also where that tints what is behind it.
    AccentText,
    /// Text and symbols on the accent colour.
    OnAccent,
    /// The accent colour behind white text, dark enough for text that is not fully opaque.
    AccentBehindText,
    White,
    ControlBackground,
    /// Bordered buttons and the chosen tab.
    ControlFace,
    /// The groove of a slider, a switch that is off, the strip behind tabs.
    ControlTrack,
    /// The knob of a slider or a switch.
    ControlKnob,
    /// The outline of a control.
    ControlBorder,
    /// The card behind the rows of a section.
    SectionBackground,
    TextBackground,
    WindowBackground,
    HudMaterial,
    PopoverMaterial,
    Red,
    Orange,
    Yellow,
    Green,
    Blue,
    Purple,
};

/// A colour by its meaning, thinned by an opacity from 0 to 1.
struct Tint {
    Color color = Color::Clear;
    double opacity = 1;

    constexpr Tint() = default;
    constexpr Tint(Color base, double thinned = 1) // NOLINT(google-explicit-constructor)
        : color(base)
        , opacity(thinned) {}

    bool operator==(const Tint&) const = default;
};

/// What something is drawn in: a tint, or one asked for whenever it is drawn, which may depend on
/// what the view observes with redrawOn.
class Ink {
public:
    // NOLINTBEGIN(google-explicit-constructor): a colour is the usual ink
    Ink(Color color)
        : Ink(Tint(color)) {}
    Ink(Tint tint)
        : tint_([tint] { return tint; }) {}
    template <std::invocable Make>
    Ink(Make make)
        : tint_(std::move(make)) {}
    // NOLINTEND(google-explicit-constructor)

    Tint operator()() const { return tint_(); }

private:
    std::function<Tint()> tint_;
};

using Weight = platform::SymbolWeight;

bool isDark(const QPalette& palette);

/// Read while painting, so that a view follows the palette as it changes. The window that shows
/// the colour need not be the active one: the colours are always those of an active window.
QColor color(Tint tint, const QPalette& palette);

/// The desktop's family in a size in points, each of which is one device-independent pixel at any
/// density. Leaves the family open, so that a widget that is given the font follows the desktop's.
QFont font(double pointSize, Weight weight);

} // namespace ui
