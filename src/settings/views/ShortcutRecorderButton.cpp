#include "settings/views/ShortcutRecorderButton.h"

#include "settings/ShortcutNames.h"
#include "settings/views/ShortcutRecorderView.h"
#include "ui/Button.h"
#include "ui/Conditional.h"
#include "ui/Label.h"
#include "ui/Stack.h"

namespace settings {

namespace {

/// The label and what it shows.
struct Label {
    ui::Element element;
    ui::Binding<QString> text;
};

/// Shows the store's shortcut, also while one of its two halves is about to change.
Label label(AppSettingsManager& store, const ui::Binding<bool>& isRecording) {
    const auto textFor = [](bool recording, std::uint64_t flags, std::uint16_t key) {
        return recording ? QStringLiteral("Press keys...") : shortcutDisplayString(flags, key);
    };
    const auto text =
        ui::state(textFor(isRecording->get(), store.shortcutModifiers, store.shortcutKeyCode));
    const auto textIn = [text](ui::Color color) {
        return ui::text(text, std::function([](const QString& shown) { return shown; }),
                        {.color = color});
    };
    ui::Element element = ui::hstack({}, textIn(ui::Color::AccentText) | ui::shownWhile(isRecording),
                                     textIn(ui::Color::Label) | ui::shownUnless(isRecording));
    ui::keep(element.widget(),
             std::tuple(isRecording->observe([=, &store](bool recording) {
                 text->set(textFor(recording, store.shortcutModifiers, store.shortcutKeyCode));
             }),
                        store.shortcutModifiers.observe([=, &store](std::uint64_t flags) {
                            text->set(textFor(isRecording->get(), flags, store.shortcutKeyCode));
                        }),
                        store.shortcutKeyCode.observe([=, &store](std::uint16_t key) {
                            text->set(textFor(isRecording->get(), store.shortcutModifiers, key));
                        })));
    return {std::move(element), text};
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
    Label shown = label(appSettings, isRecording);
    return ui::button(
               std::move(shown.element) | ui::frame({.minimumWidth = 100}) |
                   ui::padding({.horizontal = 12, .vertical = 6}),
               [recording] { recording->set(!recording->get()); }, ui::ButtonFocus::Keyboard) |
           ui::background(shape, ui::fill(fill)) | ui::border(shape, line, 1) |
           ui::redrawOn(isRecording) | ui::focusRing(shape.cornerRadius) |
           ui::behind([view = ShortcutRecorderView{keyCode, modifiers, isRecording}] {
               return view.body();
           }) |
           ui::accessibilityLabel(QStringLiteral("Keyboard shortcut")) |
           ui::accessibilityValue(shown.text) |
           ui::identifier(QStringLiteral("ShortcutRecorderButton"));
}

} // namespace settings
