#pragma once

#include "bar/FormattingBarViewModel.h"
#include "ui/Element.h"

#include <memory>

namespace bar {

/// The whole strip of buttons on its translucent, rounded background.
struct FormattingBarView {
    std::shared_ptr<FormattingBarViewModel> viewModel;

    ui::Element body() const;
};

} // namespace bar
