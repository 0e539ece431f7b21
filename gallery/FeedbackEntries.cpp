#include "gallery/Gallery.h"

#include "fakes/FakePlatform.h"
#include "feedback/FeedbackForm.h"
#include "feedback/views/FeedbackSheet.h"
#include "ui/TitledWindow.h"

#include <QApplication>
#include <QPainter>

namespace gallery {

namespace {

using feedback::FeedbackForm;

/// A desktop with two windows on it.
QImage desktopPicture() {
    QImage image(1280, 800, QImage::Format_RGB32);
    image.fill(QColor(0x47708f));
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xf7f7f2));
    painter.drawRect(90, 80, 620, 560);
    painter.setBrush(QColor(0xffffff));
    painter.drawRect(560, 190, 600, 500);
    painter.setBrush(QColor(0xb9bec4));
    for (int line = 0; line < 20; ++line) {
        painter.drawRect(600, 230 + line * 22, 300 + line * 53 % 220, 8);
    }
    return image;
}

using Arrange = std::function<void(FeedbackForm&, fakes::FakePlatform& rooms)>;

Entry feedbackEntry(const char* name, Arrange arrange) {
    return {QString::fromLatin1(name),
            [=, arrange = std::move(arrange)](fakes::FakePlatform& rooms, const QString&) {
                rooms.screenCapture.picture = desktopPicture();
                auto window = std::make_shared<ui::TitledWindow>(QStringLiteral("Feedback senden"),
                                                                 QSize(540, 540));
                const auto form = FeedbackForm::make(
                    rooms.platform, {.herkunft = QStringLiteral("Corvane Quillet – Hauptfenster"),
                                     .onClose = [shown = window.get()] { shown->hide(); }});
                window->setContent(feedback::FeedbackSheet{form});
                rooms.windowServer.bringToFront(*window, {});
                // The form has the keyboard before anything else happens to it.
                QApplication::processEvents();
                arrange(*form, rooms);
                return Exhibit{window, {window.get()}};
            }};
}

void write(FeedbackForm& form) {
    form.text = QStringLiteral("The bar covers the first line of a note when the window is at the "
                               "top of the screen.\n\nCould it stand below the selection there?");
}

} // namespace

std::vector<Entry> feedbackEntries() {
    return {
        feedbackEntry("feedback", [](auto&&...) {}),
        feedbackEntry("feedback-written", [](FeedbackForm& form, auto&) { write(form); }),
        feedbackEntry("feedback-picture-awaited",
                      [](FeedbackForm& form, auto&) { form.screenshotMitschicken = true; }),
        feedbackEntry("feedback-picture",
                      [](FeedbackForm& form, fakes::FakePlatform& rooms) {
                          form.screenshotMitschicken = true;
                          rooms.runLoop.finishBackgroundWork();
                      }),
        feedbackEntry("feedback-sending",
                      [](FeedbackForm& form, auto&) {
                          write(form);
                          form.sending = true;
                      }),
        feedbackEntry("feedback-confirmed",
                      [](FeedbackForm& form, auto&) {
                          write(form);
                          form.sending = true;
                          form.status =
                              QStringLiteral("Danke! Feedback ist drin (ID: 8k2m4x0q1v7z3pa)");
                          form.statusOK = true;
                      }),
        feedbackEntry("feedback-failed",
                      [](FeedbackForm& form, auto&) {
                          write(form);
                          form.status = QStringLiteral("Senden fehlgeschlagen: Host "
                                                       "feedback.quillet.invalid not found");
                          form.statusOK = false;
                      }),
    };
}

} // namespace gallery
