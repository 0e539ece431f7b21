#pragma once

#include "bar/FormattingBarViewModel.h"
#include "ui/Element.h"

#include <memory>

namespace bar {

/// The button that opens the colours of the application in front.
struct ColorPickerButton {
    std::shared_ptr<FormattingBarViewModel> viewModel;

    ui::Element body() const;
};

} // namespace bar
