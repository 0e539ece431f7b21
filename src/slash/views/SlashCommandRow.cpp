#include "slash/views/SlashCommandRow.h"

#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/Stack.h"

namespace slash {

namespace {

using ui::Color;
using ui::Tint;

} // namespace

ui::Element SlashCommandRow::body() const {
    const auto ink = [isSelected = isSelected](Tint selected, Tint otherwise) -> ui::Ink {
        return [=] { return isSelected->get() ? selected : otherwise; };
    };
    const auto badge = [&] {
        return ui::text(shortcut(command),
                        {.pointSize = 11,
                         .color = ink({Color::White, 0.7}, Color::SecondaryLabel),
                         .isMonospaced = true}) |
               ui::padding({.horizontal = 6, .vertical = 2}) |
               ui::background(ui::RoundedRectangle{4},
                              ui::fill(ink({Color::White, 0.2}, Color::QuaternaryLabel))) |
               ui::identifier(QStringLiteral("badge"));
    };

    auto parts = ui::elements(
        ui::symbol(icon(command), {.pointSize = 16, .colors = {ink(Color::White, Color::Accent)}}) |
            ui::frame({.width = 24, .height = 24}) | ui::identifier(QStringLiteral("icon")),
        ui::vstack(
            {.spacing = 2, .alignment = ui::Alignment::Leading},
            ui::text(rawValue(command), {.pointSize = 13,
                                         .weight = ui::Weight::Medium,
                                         .color = ink(Color::White, Color::Label)}) |
                ui::identifier(QStringLiteral("title")),
            ui::text(description(command),
                     {.pointSize = 11, .color = ink({Color::White, 0.8}, Color::SecondaryLabel)}) |
                ui::identifier(QStringLiteral("description"))),
        ui::spacer());
    if (!shortcut(command).isEmpty()) {
        parts.push_back(badge());
    }
    return ui::stack(Qt::Horizontal, {.spacing = 12}, std::move(parts)) |
           ui::padding({.horizontal = 12, .vertical = 8}) |
           ui::background(ui::RoundedRectangle{8},
                          ui::fill(ink(Color::Accent, Color::Clear))) |
           ui::redrawOn(isSelected);
}

} // namespace slash
