#include "bar/views/VisualEffectBackground.h"

#include "platform/Platform.h"
#include "ui/Theme.h"

namespace bar {

QColor VisualEffectBackground::operator()(const QPalette& palette) const {
    if (platform::current().windowServer->hasMaterials()) {
        return Qt::transparent;
    }
    switch (material) {
    case VisualEffectMaterial::HudWindow:
        return ui::color({ui::Color::HudMaterial}, palette);
    }
    Q_UNREACHABLE();
}

} // namespace bar
