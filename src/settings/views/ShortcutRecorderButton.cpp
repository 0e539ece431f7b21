#include "settings/views/ShortcutRecorderButton.h"

#include "settings/ShortcutNames.h"
#include "settings/views/ShortcutRecorderView.h"
#include "ui/Button.h"
#include "ui/Conditional.h"
#include "ui/Label.h"
#include "ui/Stack.h"

namespace settings {

namespace {

/// The store's shortcut, also while one of its two halves is about to change.
ui::Element shortcutText(AppSettingsManager& store) {
    ui::Element element = ui::text(ui::binding(store.shortcutKeyCode),
                                   std::function([&store](const std::uint16_t& key) {
                                       return shortcutDisplayString(store.shortcutModifiers, key);
                                   }));
    QWidget& widget = element.widget();
    ui::keep(widget, store.shortcutModifiers.observe([&](const std::uint64_t& flags) {
        ui::setText(widget, shortcutDisplayString(flags, store.shortcutKeyCode));
    }));
    return element;
}

} // namespace

ui::Element ShortcutRecorderButton::body() const {
    using ui::Color;
    const ui::RoundedRectangle shape{6};
    const auto recording = isRecording;
    const auto fill = [recording] {
        return recording->get() ? ui::Tint{Color::Accent, 0.2} : ui::Tint{Color::ControlBackground};
    };
    const auto line = [recording] {
        return ui::Tint{recording->get() ? Color::Accent : Color::Separator};
    };
    return ui::button(
               ui::hstack({},
                          ui::text(QStringLiteral("Press keys..."), {.color = Color::Accent}) |
                              ui::shownWhile(isRecording),
                          shortcutText(appSettings) | ui::shownUnless(isRecording)) |
                   ui::frame({.minimumWidth = 100}) |
                   ui::padding({.horizontal = 12, .vertical = 6}),
               [recording] { recording->set(!recording->get()); }, ui::ButtonFocus::Keyboard) |
           ui::background(shape, ui::fill(fill)) | ui::border(shape, line, 1) |
           ui::redrawOn(isRecording) | ui::focusRing(shape.cornerRadius) |
           ui::behind([view = ShortcutRecorderView{keyCode, modifiers, isRecording}] {
               return view.body();
           }) |
           ui::accessibilityLabel(QStringLiteral("Keyboard shortcut")) |
           ui::identifier(QStringLiteral("ShortcutRecorderButton"));
}

} // namespace settings
