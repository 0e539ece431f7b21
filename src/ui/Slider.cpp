#include "ui/Slider.h"

#include "ui/SteppedSlider.h"

namespace ui {

Element slider(Binding<double> value, SliderOptions options) {
    return Element(std::make_unique<SteppedSlider>(std::move(value), std::move(options)));
}

} // namespace ui
