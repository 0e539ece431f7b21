#pragma once

#include "settings/AppInfo.h"
#include "ui/Binding.h"
#include "ui/Element.h"

#include <functional>

namespace settings {

/// One application of the list, with a switch that tells whether it is chosen. A click anywhere
/// calls `onToggle`.
struct AppRow {
    AppInfo app;
    ui::Binding<bool> isSelected;
    std::function<void()> onToggle;

    ui::Element body() const;
};

} // namespace settings
