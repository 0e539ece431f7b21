#include "bar/views/ColorPickerButton.h"

#include "ui/Button.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"

namespace bar {

ui::Element ColorPickerButton::body() const {
    using ui::Color;
    const auto isHovered = ui::state(false);
    const auto highlight = [isHovered] {
        return isHovered->get() ? ui::Tint{Color::Accent, 0.2} : ui::Tint{};
    };
    const ui::SymbolOptions palette{
        .pointSize = 14,
        .weight = ui::Weight::Medium,
        .colors = {Color::Red, Color::Orange, Color::Yellow, Color::Green, Color::Blue,
                   Color::Purple},
    };
    return ui::button(ui::symbol(QStringLiteral("paintpalette.fill"), palette),
                      [viewModel = viewModel] { viewModel->onOpenColorPicker(); }) |
           ui::frame({.width = 32, .height = 26}) |
           ui::background(ui::RoundedRectangle{5}, ui::fill(highlight)) |
           ui::tooltip(QStringLiteral("Text Color")) | ui::onHover(isHovered) |
           ui::identifier(QStringLiteral("paintpalette.fill"));
}

} // namespace bar
