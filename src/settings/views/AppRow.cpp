#include "settings/views/AppRow.h"

#include "settings/views/AppIcon.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/Stack.h"
#include "ui/Toggle.h"

namespace settings {

ui::Element AppRow::body() const {
    auto caption = ui::textOptions(ui::TextStyle::Caption2, ui::Color::SecondaryLabel);
    caption.truncates = true;
    const auto isHovered = ui::state(false);
    const auto fill = [isHovered] {
        return isHovered->get() ? ui::Tint{ui::Color::Label, 0.05} : ui::Tint{};
    };
    return ui::hstack({}, AppIcon{app.icon} | ui::identifier(QStringLiteral("icon")),
                      ui::vstack({.spacing = 2, .alignment = ui::Alignment::Leading},
                                 ui::text(app.name, {.truncates = true}),
                                 ui::text(app.bundleIdentifier, caption)),
                      ui::spacer(), ui::switchControl(app.name, isSelected, onToggle)) |
           ui::padding({.horizontal = 16}) | ui::background({0}, ui::fill(fill)) |
           ui::onHover(isHovered) | ui::onTap(onToggle);
}

} // namespace settings
