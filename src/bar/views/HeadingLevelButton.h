#pragma once

#include "bar/FormattingBarViewModel.h"
#include "ui/Element.h"

#include <memory>

namespace bar {

/// One row of the heading picker, written in the font of its level.
struct HeadingLevelButton {
    HeadingLevel level = 0;
    QString label;
    std::shared_ptr<FormattingBarViewModel> viewModel;

    ui::Element body() const;
};

} // namespace bar
