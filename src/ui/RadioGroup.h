#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"

#include <vector>

namespace ui {

struct RadioOption {
    QString label;
    bool value = false;
};

/// A title and one radio button for each option, one below the other.
Element radioGroup(const QString& title, Binding<bool> selection,
                   const std::vector<RadioOption>& options);

} // namespace ui
