#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"

namespace ui {

struct SliderOptions {
    double minimum = 0;
    double maximum = 1;
    /// Between two stops. The maximum is one of them.
    double step = 0.1;
    QString accessibilityLabel;
};

/// A horizontal slider with evenly spaced stops. It shows a value outside its range at the nearer
/// end, one between two stops where it is, and writes only what the user chooses.
Element slider(Binding<double> value, SliderOptions options);

} // namespace ui
