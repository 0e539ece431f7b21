#pragma once

#include "bar/FormattingBarViewModel.h"
#include "ui/Element.h"

#include <memory>

namespace bar {

/// The button that opens and closes the heading picker, and the picker below it.
struct HeadingButton {
    std::shared_ptr<FormattingBarViewModel> viewModel;

    ui::Element body() const;
};

} // namespace bar
