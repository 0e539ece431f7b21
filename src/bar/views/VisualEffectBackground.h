#pragma once

#include "platform/WindowServer.h"

#include <QColor>

class QPalette;

namespace bar {

using platform::VisualEffectBlendingMode;
using platform::VisualEffectMaterial;

/// A translucent background, the same whether or not the program is in front.
struct VisualEffectBackground {
    VisualEffectMaterial material = VisualEffectMaterial::HudWindow;
    VisualEffectBlendingMode blendingMode = VisualEffectBlendingMode::BehindWindow;

    /// The fill that stands for the effect in that palette; none where the system draws the effect.
    QColor operator()(const QPalette& palette) const;
};

} // namespace bar
