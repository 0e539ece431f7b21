#include "bar/views/HeadingButton.h"

#include "bar/views/HeadingLevelButton.h"
#include "ui/Button.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/Popover.h"
#include "ui/Stack.h"

namespace bar {

namespace {

ui::Element headingPicker(const std::shared_ptr<FormattingBarViewModel>& viewModel) {
    const auto level = [&](const HeadingChoice& choice) {
        return HeadingLevelButton{choice.level, choice.label.toString(), viewModel};
    };
    const auto& [title, heading, subheading, body] = headingChoices;
    return ui::vstack({.spacing = 4}, level(title), level(heading), level(subheading),
                      ui::divider(Qt::Horizontal), level(body)) |
           ui::padding({.horizontal = 8, .vertical = 8}) | ui::frame({.width = 140});
}

} // namespace

ui::Element HeadingButton::body() const {
    const auto isHovered = ui::state(false);
    const auto showHeadingPicker =
        ui::binding(viewModel, &FormattingBarViewModel::showHeadingPicker);
    const auto highlight = [isHovered, showHeadingPicker] {
        const bool highlighted = isHovered->get() || showHeadingPicker->get();
        return highlighted ? ui::Tint{ui::Color::Accent, 0.2} : ui::Tint{};
    };
    return ui::button(ui::hstack({.spacing = 2},
                                 ui::symbol(QStringLiteral("textformat.size"),
                                            {.pointSize = 14, .weight = ui::Weight::Medium}),
                                 ui::symbol(QStringLiteral("chevron.down"),
                                            {.pointSize = 8, .weight = ui::Weight::Bold})),
                      [=] { showHeadingPicker->set(!showHeadingPicker->get()); }) |
           ui::frame({.width = 40, .height = 26}) |
           ui::background(ui::RoundedRectangle{5}, ui::fill(highlight)) |
           ui::tooltip(QStringLiteral("Heading")) | ui::onHover(isHovered) |
           ui::redrawOn(showHeadingPicker) | ui::identifier(QStringLiteral("textformat.size")) |
           ui::popover(showHeadingPicker,
                       [viewModel = viewModel] { return headingPicker(viewModel); });
}

} // namespace bar
