#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"

#include <QImage>

namespace ui {

struct ImageOptions {
    int maximumHeight = 0;
    double cornerRadius = 0;
    QString accessibilityLabel;
};

/// A picture in its own proportions, as large as there is room for. It takes no room while the
/// picture is null.
Element image(Binding<QImage> picture, ImageOptions options);

} // namespace ui
