#pragma once

#include <QColor>

class QPalette;

namespace bar {

/// The materials that a translucent background can be of.
enum class VisualEffectMaterial { HudWindow = 13 };

/// What shows through it.
enum class VisualEffectBlendingMode { BehindWindow = 0 };

/// A translucent background, the same whether or not the program is in front.
struct VisualEffectBackground {
    VisualEffectMaterial material = VisualEffectMaterial::HudWindow;
    VisualEffectBlendingMode blendingMode = VisualEffectBlendingMode::BehindWindow;

    /// The fill that stands for the effect in that palette; none where the system draws the effect.
    QColor operator()(const QPalette& palette) const;
};

} // namespace bar
