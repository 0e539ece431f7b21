#include "updates/UpdateController.h"

#include "ui/TitledWindow.h"
#include "updates/views/UpdateView.h"

#include <QEvent>
#include <QShortcut>
#include <QWindow>

#include <utility>

using platform::UpdateChoice;

namespace updates {

UpdateController::UpdateController(platform::Platform& platform)
    : platform_(platform) {}

UpdateController::~UpdateController() = default;

void UpdateController::present(const platform::UpdateAnswer& answer,
                               std::function<void(UpdateChoice)> choose) {
    choose_ = std::move(choose);
    const UpdateView view{answer, [this](UpdateChoice choice) { obey(choice); }};
    if (!window_) {
        makeWindow(view.contentSize());
    }
    window_->setFixedSize(view.contentSize());
    window_->setContent(view);
    const bool isChecking = std::holds_alternative<platform::CheckingForUpdates>(answer);
    if (std::exchange(isChecking_, isChecking) && !isChecking && window_->isVisible()) {
        // The user may have gone on to something else while the answer was awaited.
        window_->windowHandle()->alert(0);
    } else {
        platform_.windowServer->bringToFront(*window_, {});
    }
}

void UpdateController::makeWindow(QSize contentSize) {
    window_ =
        std::make_unique<ui::TitledWindow>(QStringLiteral("Corvane Quillet Updates"), contentSize);
    window_->installEventFilter(this);
    auto* escape = new QShortcut(Qt::Key_Escape, window_.get());
    connect(escape, &QShortcut::activated, window_.get(), &QWidget::close);
}

bool UpdateController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close) {
        obey(UpdateChoice::Dismiss);
    }
    return QObject::eventFilter(watched, event);
}

void UpdateController::obey(UpdateChoice choice) {
    if (choice == UpdateChoice::OpenReleaseNotes) {
        if (choose_) {
            choose_(choice);
        }
        return;
    }
    const auto choose = std::exchange(choose_, nullptr);
    isChecking_ = false;
    window_->hide();
    if (choose) {
        choose(choice);
    }
}

} // namespace updates
