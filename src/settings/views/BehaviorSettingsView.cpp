#include "settings/views/BehaviorSettingsView.h"

#include "core/DecimalText.h"
#include "settings/views/ShortcutRecorderButton.h"
#include "ui/Conditional.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/RadioGroup.h"
#include "ui/Slider.h"

namespace settings {

namespace {

using ui::Color;
using ui::TextStyle;

constexpr int indentation = 20;

QString delayText(double delay) {
    return QStringLiteral("Delay before appearing: %1s").arg(core::decimalText(delay, 1));
}

} // namespace

ui::Element BehaviorSettingsView::body() const {
    const auto useKeyboardShortcut = ui::binding(appSettings.useKeyboardShortcut);
    const auto appearanceDelay = ui::binding(appSettings.appearanceDelay);
    const auto caption2 = ui::textOptions(TextStyle::Caption2, Color::SecondaryLabel);

    return ui::form(ui::section(
        QStringLiteral("Trigger Mode"),
        ui::radioGroup(QStringLiteral("Show formatting bar"), useKeyboardShortcut,
                       {{QStringLiteral("Automatically on text selection"), false},
                        {QStringLiteral("With keyboard shortcut"), true}}),

        ui::vstack({.spacing = 8, .alignment = ui::Alignment::Leading},
                   ui::text(appearanceDelay,
                            std::function([](const double& d) { return delayText(d); }),
                            ui::textOptions(TextStyle::Caption)) |
                       ui::identifier(QStringLiteral("delay")),
                   ui::slider(appearanceDelay,
                              {.minimum = 0.0,
                               .maximum = 2.0,
                               .step = 0.1,
                               .accessibilityLabel = QStringLiteral("Delay before appearing")}),
                   ui::hstack({}, ui::text(QStringLiteral("Instant"), caption2), ui::spacer(),
                              ui::text(QStringLiteral("2 seconds"), caption2))) |
            ui::padding({.leading = indentation}) | ui::shownUnless(useKeyboardShortcut),

        ui::hstack({}, ui::text(QStringLiteral("Keyboard shortcut:")), ui::spacer(),
                   ShortcutRecorderButton{appSettings, ui::binding(appSettings.shortcutKeyCode),
                                          ui::binding(appSettings.shortcutModifiers),
                                          isRecordingShortcut}) |
            ui::padding({.leading = indentation}) | ui::shownWhile(useKeyboardShortcut),

        ui::hstack(
            {},
            ui::text(QStringLiteral(
                         "Press the shortcut when text is selected to show the formatting bar"),
                     ui::textOptions(TextStyle::Caption, Color::SecondaryLabel)),
            ui::spacer()) |
            ui::padding({.leading = indentation}) | ui::shownWhile(useKeyboardShortcut)));
}

} // namespace settings
