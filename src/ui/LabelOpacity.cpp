#include "ui/LabelOpacity.h"

#include <QAbstractButton>

namespace ui {

double labelOpacity(const QWidget& label) {
    if (!label.isEnabled()) {
        return 0.4;
    }
    for (const QWidget* widget = &label; widget != nullptr; widget = widget->parentWidget()) {
        const auto* button = dynamic_cast<const QAbstractButton*>(widget);
        if (button != nullptr && button->isDown()) {
            return 0.6;
        }
    }
    return 1;
}

} // namespace ui
