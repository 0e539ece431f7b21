#pragma once

#include "slash/SlashCommand.h"
#include "ui/Binding.h"
#include "ui/Element.h"

namespace slash {

/// One command of the menu, highlighted or not.
struct SlashCommandRow {
    SlashCommand command;
    ui::Binding<bool> isSelected;

    ui::Element body() const;
};

} // namespace slash
