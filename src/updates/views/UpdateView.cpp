#include "updates/views/UpdateView.h"

#include "ui/FocusRing.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/PushButton.h"
#include "ui/Stack.h"
#include "ui/TextEditor.h"
#include "updates/UpdateMessage.h"

#include <vector>

namespace updates {

namespace {

using platform::UpdateAvailable;
using platform::UpdateChoice;
using ui::ButtonKey;
using ui::ButtonStyle;
using ui::Color;

constexpr int margin = 20;
constexpr int width = 560;
constexpr ui::RoundedRectangle notesBox{6};

std::vector<ui::Element> buttons(const UpdateView& view) {
    const auto button = [&view](const char16_t* title, ui::PushButtonOptions options,
                                UpdateChoice choice) {
        return ui::pushButton(QString::fromUtf16(title), std::move(options),
                              [choose = view.choose, choice] { choose(choice); });
    };
    const ui::PushButtonOptions main{.style = ButtonStyle::Prominent, .key = ButtonKey::Default};
    std::vector<ui::Element> row;
    const auto* update = std::get_if<UpdateAvailable>(&view.answer);
    if (update == nullptr) {
        row.push_back(ui::spacer());
        row.push_back(std::holds_alternative<platform::CheckingForUpdates>(view.answer)
                          ? button(u"Cancel", {}, UpdateChoice::Dismiss)
                          : button(u"OK", main, UpdateChoice::Dismiss));
        return row;
    }
    if (!update->isCritical) {
        row.push_back(button(u"Skip This Version", {}, UpdateChoice::SkipVersion));
    }
    row.push_back(ui::spacer());
    if (update->hasNotesPage) {
        row.push_back(button(u"Release Notes", {}, UpdateChoice::OpenReleaseNotes));
    }
    row.push_back(button(u"Later", update->hasDownloadPage ? ui::PushButtonOptions{} : main,
                         UpdateChoice::Dismiss));
    if (update->hasDownloadPage) {
        row.push_back(button(u"Open Download Page", main, UpdateChoice::OpenDownloadPage));
    }
    return row;
}

ui::Element notesElement(const QString& notes) {
    constexpr int inset = 4;
    ui::Element text =
        ui::textEditor(ui::state(notes),
                       {.accessibilityLabel = QStringLiteral("What is new"), .isReadOnly = true});
    const QWidget& widget = text.widget();
    ui::FocusRing::attach(text.widget(), [&widget] {
        return ui::FocusRing::Shape{QRectF(widget.rect()).adjusted(-inset, -inset, inset, inset),
                                    notesBox.cornerRadius};
    });
    return std::move(text) | ui::padding({.horizontal = inset, .vertical = inset}) |
           ui::background(notesBox, ui::fill([] { return ui::Tint{Color::TextBackground}; })) |
           ui::border(notesBox, {Color::ControlBorder}, 1);
}

QString notesOf(const platform::UpdateAnswer& answer) {
    const auto* update = std::get_if<UpdateAvailable>(&answer);
    return update == nullptr ? QString() : update->notes;
}

} // namespace

ui::Element UpdateView::body() const {
    const UpdateMessage message = messageOf(answer);
    std::vector<ui::Element> rows;
    rows.push_back(ui::text(message.headline, {.pointSize = 15, .weight = ui::Weight::Bold}) |
                   ui::identifier(QStringLiteral("headline")));
    if (!message.details.isEmpty()) {
        rows.push_back(ui::text(message.details, {.color = Color::SecondaryLabel, .wraps = true}) |
                       ui::identifier(QStringLiteral("details")));
    }
    if (const QString notes = notesOf(answer); !notes.isEmpty()) {
        rows.push_back(notesElement(notes));
    } else {
        rows.push_back(ui::spacer());
    }
    rows.push_back(ui::stack(Qt::Horizontal, {}, buttons(*this)));
    return ui::stack(Qt::Vertical, {.spacing = 12, .alignment = ui::Alignment::Leading},
                     std::move(rows)) |
           ui::padding({.horizontal = margin, .vertical = margin}) |
           ui::identifier(QStringLiteral("UpdateView"));
}

QSize UpdateView::contentSize() const {
    constexpr int heightOfWords = 164;
    constexpr int heightWithNotes = 400;
    return {width, notesOf(answer).isEmpty() ? heightOfWords : heightWithNotes};
}

} // namespace updates
