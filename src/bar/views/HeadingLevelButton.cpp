#include "bar/views/HeadingLevelButton.h"

#include "ui/Button.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/Stack.h"

namespace bar {

namespace {

ui::TextOptions textOptions(HeadingLevel level) {
    const HeadingFont font = headingFont(level);
    const auto weight = [&] {
        switch (font.weight) {
        case HeadingWeight::Regular:
            return ui::Weight::Regular;
        case HeadingWeight::Semibold:
            return ui::Weight::Semibold;
        case HeadingWeight::Bold:
            return ui::Weight::Bold;
        }
        Q_UNREACHABLE();
    };
    return {.pointSize = font.pointSize, .weight = weight()};
}

} // namespace

ui::Element HeadingLevelButton::body() const {
    const auto isHovered = ui::state(false);
    const auto highlight = [isHovered] {
        return isHovered->get() ? ui::Tint{ui::Color::Accent, 0.3} : ui::Tint{};
    };
    return ui::button(ui::hstack({}, ui::text(label, textOptions(level)), ui::spacer()) |
                          ui::padding({.horizontal = 8, .vertical = 4}),
                      [viewModel = viewModel, level = level] {
                          // The picker is closed by the time the choice is reported.
                          viewModel->showHeadingPicker = false;
                          viewModel->onHeading(level);
                      }) |
           ui::background(ui::RoundedRectangle{4}, ui::fill(highlight)) |
           ui::accessibilityLabel(label) | ui::onHover(isHovered) | ui::identifier(label);
}

} // namespace bar
