#include "bar/views/IconButton.h"

#include "ui/Button.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"

namespace bar {

ui::Element IconButton::body() const {
    const auto isHovered = ui::state(false);
    const auto highlight = [isHovered] {
        return isHovered->get() ? ui::Tint{ui::Color::Accent, 0.2} : ui::Tint{};
    };
    return ui::button(ui::symbol(icon, {.pointSize = 14, .weight = ui::Weight::Medium}), action) |
           ui::frame({.width = 30, .height = 26}) |
           ui::background(ui::RoundedRectangle{5}, ui::fill(highlight)) | ui::tooltip(tooltip) |
           ui::onHover(isHovered) | ui::identifier(icon);
}

} // namespace bar
