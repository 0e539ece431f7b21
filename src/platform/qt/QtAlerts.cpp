#include "platform/qt/QtAlerts.h"

#include "core/Fatal.h"
#include "platform/qt/ProgramIcon.h"

#include <QMessageBox>
#include <QPushButton>

namespace platform {

namespace {

QMessageBox::Icon icon(AlertStyle style) {
    switch (style) {
    case AlertStyle::Warning:
        return QMessageBox::Warning;
    case AlertStyle::Informational:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

void bringToFront(QWidget& window) {
    window.raise();
    window.activateWindow();
}

} // namespace

int QtAlerts::runModal(const Alert& alert) {
    if (alert.buttons.isEmpty()) {
        core::fatal(u"an alert without buttons");
    }
    const int lastReturn = firstButtonReturn + static_cast<int>(alert.buttons.size()) - 1;
    if (open_) {
        bringToFront(*open_);
        return lastReturn;
    }

    QMessageBox box;
    open_ = &box;
    box.setObjectName(QStringLiteral("alert"));
    // The program has no window that the alert could belong to, and the application in front must
    // not cover it.
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.setWindowTitle(QStringLiteral("Corvane Quillet"));
    box.setWindowIcon(programIcon());
    box.setIcon(icon(alert.style));
    box.setTextFormat(Qt::RichText);
    box.setText(QStringLiteral("<b>%1</b>").arg(alert.messageText.toHtmlEscaped()));
    box.setInformativeText(
        alert.informativeText.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")));
    QList<QPushButton*> buttons;
    for (const QString& title : alert.buttons) {
        const bool last = buttons.size() == alert.buttons.size() - 1;
        buttons.push_back(box.addButton(
            title, last && !buttons.isEmpty() ? QMessageBox::RejectRole : QMessageBox::AcceptRole));
        buttons.back()->setAutoDefault(true);
    }
    box.setDefaultButton(buttons.front());
    box.setEscapeButton(buttons.back());
    box.show();
    bringToFront(box);
    box.exec();

    const auto pressed = buttons.indexOf(qobject_cast<QPushButton*>(box.clickedButton()));
    return pressed < 0 ? lastReturn : firstButtonReturn + static_cast<int>(pressed);
}

} // namespace platform
