#pragma once

#include "bar/FormattingBarViewModel.h"
#include "bar/views/VisualEffectBackground.h"
#include "ui/Element.h"

#include <memory>

namespace bar {

/// The whole strip of buttons on its translucent, rounded background.
struct FormattingBarView {
    static constexpr VisualEffectBackground background{VisualEffectMaterial::HudWindow,
                                                       VisualEffectBlendingMode::BehindWindow};

    std::shared_ptr<FormattingBarViewModel> viewModel;

    ui::Element body() const;
};

} // namespace bar
