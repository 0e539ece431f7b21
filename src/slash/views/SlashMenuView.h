#pragma once

#include "slash/SlashMenuViewModel.h"
#include "ui/Binding.h"
#include "ui/Element.h"
#include "ui/TextField.h"

#include <functional>
#include <memory>

namespace slash {

/// The whole panel: a search field above the commands that match. It takes the keyboard when it
/// appears.
struct SlashMenuView {
    static constexpr double cornerRadius = 12;

    std::shared_ptr<SlashMenuViewModel> viewModel;
    ui::Binding<bool> isSearchFocused = ui::state(false);
    /// Gets the keys that are pressed in the search field first; answers whether it took them.
    std::function<bool(QKeyEvent&)> onKeyPress = nullptr;

    ui::Element body() const;

private:
    ui::Element searchBar() const;
    ui::Element commandList() const;
};

} // namespace slash
