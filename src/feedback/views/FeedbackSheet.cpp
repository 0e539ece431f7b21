#include "feedback/views/FeedbackSheet.h"

#include "ui/Conditional.h"
#include "ui/Form.h"
#include "ui/Image.h"
#include "ui/Label.h"
#include "ui/PushButton.h"
#include "ui/ScrollView.h"
#include "ui/TextEditor.h"
#include "ui/Toggle.h"

namespace feedback {

namespace {

using ui::Color;
using ui::TextStyle;

constexpr ui::Padding standardPadding{.horizontal = 16, .vertical = 16};
constexpr int standardSpacing = 8;

ui::TextOptions secondary(TextStyle style) {
    ui::TextOptions options = ui::textOptions(style, Color::SecondaryLabel);
    options.wraps = true;
    return options;
}

template <typename T>
ui::Binding<T> of(const std::shared_ptr<FeedbackForm>& form,
                  core::Published<T> FeedbackForm::*property) {
    return ui::binding(form, property);
}

ui::Element valueRow(const QString& label, const ui::Binding<QString>& value) {
    return ui::labeledContent(
        label, ui::text(value, std::function([](const QString& text) { return text; }),
                        {.color = Color::SecondaryLabel, .truncates = true}));
}

QString sizeText(const std::optional<QByteArray>& png) {
    return QStringLiteral("Größe: ") + formatBytes(png ? png->size() : 0);
}

} // namespace

ui::Element FeedbackSheet::header() const {
    return ui::hstack(
               {.spacing = standardSpacing},
               ui::symbol(QStringLiteral("envelope.badge"),
                          {.pointSize = ui::textOptions(TextStyle::Title2).pointSize,
                           .colors = {Color::Blue}}),
               ui::vstack({.spacing = 2, .alignment = ui::Alignment::Leading},
                          ui::text(QStringLiteral("Feedback an Ardel"),
                                   ui::textOptions(TextStyle::Headline)),
                          ui::text(QStringLiteral("Geht direkt rein. Du musst nichts kopieren."),
                                   ui::textOptions(TextStyle::Caption, Color::SecondaryLabel))),
               ui::spacer()) |
           ui::padding(standardPadding);
}

ui::Element FeedbackSheet::message() const {
    return ui::section(
        QStringLiteral("Dein Feedback"),
        ui::vstack(
            {.spacing = standardSpacing, .alignment = ui::Alignment::Leading},
            ui::textEditor(
                of(form, &FeedbackForm::text),
                {.minimumHeight = 140, .accessibilityLabel = QStringLiteral("Dein Feedback")}) |
                ui::border({0}, {Color::SecondaryLabel, 0.3}, 1) |
                ui::identifier(QStringLiteral("text")),
            ui::text(QStringLiteral("Was funktioniert nicht / was wäre cool / wo hängst du?"),
                     secondary(TextStyle::Caption))));
}

ui::Element FeedbackSheet::screenshot() const {
    const auto isOn = of(form, &FeedbackForm::screenshotMitschicken);
    const auto preview = of(form, &FeedbackForm::preview);
    const auto isTaken = ui::combined(
        isOn, preview, [](bool on, const QImage& picture) { return on && !picture.isNull(); });
    const auto isAwaited = ui::combined(
        isOn, preview, [](bool on, const QImage& picture) { return on && picture.isNull(); });
    return ui::section(
        QStringLiteral("Optional"),
        ui::toggle(QStringLiteral("Aktuellen Screenshot mitschicken"), isOn) |
            ui::identifier(QStringLiteral("screenshotMitschicken")),
        ui::vstack({.spacing = standardSpacing, .alignment = ui::Alignment::Leading},
                   ui::image(preview, {.maximumHeight = 160,
                                       .cornerRadius = 6,
                                       .accessibilityLabel = QStringLiteral("Screenshot")}) |
                       ui::identifier(QStringLiteral("preview")),
                   ui::text(of(form, &FeedbackForm::screenshotData),
                            std::function(
                                [](const std::optional<QByteArray>& png) { return sizeText(png); }),
                            ui::textOptions(TextStyle::Caption2, Color::SecondaryLabel)) |
                       ui::identifier(QStringLiteral("size"))) |
            ui::shownWhile(isTaken) | ui::revealedOn(preview),
        ui::text(QStringLiteral("Screenshot wird erzeugt …"), secondary(TextStyle::Caption)) |
            ui::identifier(QStringLiteral("awaited")) | ui::shownWhile(isAwaited));
}

ui::Element FeedbackSheet::diagnostics() const {
    std::vector<ui::Element> rows;
    rows.push_back(valueRow(QStringLiteral("Absender"), of(form, &FeedbackForm::userName)));
    rows.push_back(valueRow(QStringLiteral("App-Version"), of(form, &FeedbackForm::appVersion)));
    rows.push_back(valueRow(QStringLiteral("macOS"), of(form, &FeedbackForm::osVersion)));
    if (!form->herkunft().isEmpty()) {
        rows.push_back(valueRow(QStringLiteral("Bereich"), ui::state(form->herkunft())));
    }
    rows.push_back(ui::text(QStringLiteral("Außerdem: Accessibility-Status + aktuelle "
                                           "Einstellungen. Keine persönlichen Daten."),
                            secondary(TextStyle::Caption2)));
    return ui::section(QStringLiteral("Wird automatisch mitgeschickt (zur Diagnose)"),
                       std::move(rows));
}

ui::Element FeedbackSheet::outcome() const {
    const auto statusOK = of(form, &FeedbackForm::statusOK);
    const auto status = of(form, &FeedbackForm::status);
    const auto succeeded = ui::mapped(
        statusOK, [](const std::optional<bool>& outcome) { return outcome.value_or(false); });
    ui::TextOptions callout = ui::textOptions(TextStyle::Callout);
    callout.wraps = true;
    return ui::section(
               {},
               ui::hstack(
                   {.spacing = standardSpacing},
                   ui::symbol(QStringLiteral("checkmark.circle.fill"), {.colors = {Color::Green}}) |
                       ui::shownWhile(succeeded),
                   ui::symbol(QStringLiteral("exclamationmark.circle.fill"),
                              {.colors = {Color::Orange}}) |
                       ui::shownUnless(succeeded),
                   ui::text(status, std::function([](const QString& text) { return text; }),
                            callout) |
                       ui::identifier(QStringLiteral("status")))) |
           ui::identifier(QStringLiteral("outcome")) |
           ui::shownWhen<QString>(status, [](const QString& text) { return !text.isEmpty(); }) |
           ui::revealedOn(status);
}

ui::Element FeedbackSheet::content() const {
    return ui::scrollView(ui::form(message(), screenshot(), diagnostics(), outcome()));
}

ui::Element FeedbackSheet::footer() const {
    const auto sending = of(form, &FeedbackForm::sending);
    const auto title = ui::mapped(sending, [](bool isSending) {
        return isSending ? QStringLiteral("Sende …") : QStringLiteral("Feedback senden");
    });
    const auto canSend = ui::combined(of(form, &FeedbackForm::text), sending,
                                      [](const QString& text, bool isSending) {
                                          return !isSending && !text.trimmed().isEmpty();
                                      });
    return ui::hstack({.spacing = standardSpacing},
                      ui::pushButton(QStringLiteral("Abbrechen"), {.key = ui::ButtonKey::Cancel},
                                     [form = form] { form->abbrechen(); }),
                      ui::spacer(),
                      ui::pushButton(title,
                                     {.style = ui::ButtonStyle::Prominent,
                                      .key = ui::ButtonKey::Default,
                                      .isEnabled = canSend},
                                     [form = form] { form->senden(); })) |
           ui::padding(standardPadding);
}

ui::Element FeedbackSheet::body() const {
    return ui::vstack({.spacing = 0}, header(), ui::divider(Qt::Horizontal), content(),
                      ui::divider(Qt::Horizontal), footer()) |
           ui::frame({.width = 540, .height = 540}) |
           ui::identifier(QStringLiteral("FeedbackSheet")) |
           ui::onAppear([form = form] { form->laden(); });
}

} // namespace feedback
