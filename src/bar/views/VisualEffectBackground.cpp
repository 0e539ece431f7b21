#include "bar/views/VisualEffectBackground.h"

#include "ui/Theme.h"

namespace bar {

QColor VisualEffectBackground::operator()(const QPalette& palette) const {
    switch (material) {
    case VisualEffectMaterial::HudWindow:
        return ui::color({ui::Color::HudMaterial}, palette);
    }
    Q_UNREACHABLE();
}

} // namespace bar
