#include "platform/linux/atspi/TrustQuestion.h"

#include "platform/qt/ProgramIcon.h"

#include <QPushButton>

namespace platform {

TrustQuestion::~TrustQuestion() {
    delete question_;
}

void TrustQuestion::ask(std::function<void()> agreed) {
    if (question_) {
        question_->raise();
        return;
    }
    question_ = new QMessageBox(QMessageBox::Question, QStringLiteral("Corvane Quillet"),
                                QStringLiteral("Switch on accessibility for this desktop?"),
                                QMessageBox::NoButton);
    question_->setObjectName(QStringLiteral("trustQuestion"));
    question_->setWindowIcon(programIcon());
    question_->setAttribute(Qt::WA_DeleteOnClose);
    question_->setTextFormat(Qt::PlainText);
    question_->setInformativeText(QStringLiteral(
        "Corvane Quillet shows its formatting bar next to the text that you select. To learn what "
        "is selected, and where, it reads other applications through the desktop's accessibility "
        "service, which is switched off.\n\n"
        "Switching it on lets every program of yours read the windows of your applications. It "
        "stays on until you switch it off in the desktop's accessibility settings.\n\n"
        "Afterwards quit Corvane Quillet and start it again, and likewise any application that "
        "does not answer yet."));
    auto* switchOn = question_->addButton(QStringLiteral("Switch On"), QMessageBox::AcceptRole);
    auto* notNow = question_->addButton(QStringLiteral("Not Now"), QMessageBox::RejectRole);
    switchOn->setObjectName(QStringLiteral("switchOn"));
    notNow->setObjectName(QStringLiteral("notNow"));
    question_->setDefaultButton(switchOn);
    question_->setEscapeButton(notNow);
    QObject::connect(question_, &QDialog::accepted, question_, std::move(agreed));
    question_->setModal(false);
    // At login other windows open after it.
    question_->setWindowFlag(Qt::WindowStaysOnTopHint);
    question_->show();
    question_->raise();
}

} // namespace platform
