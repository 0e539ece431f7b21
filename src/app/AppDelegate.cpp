#include "app/AppDelegate.h"

#include "app/StatusIcon.h"
#include "bar/FormattingBarController.h"
#include "core/Log.h"
#include "core/NotificationCenter.h"
#include "feedback/views/FeedbackSheet.h"
#include "monitor/NotesAutomation.h"
#include "monitor/NotesMonitor.h"
#include "settings/views/SettingsView.h"
#include "ui/TitledWindow.h"
#include "updates/UpdateController.h"

#include <QCoreApplication>
#include <QPointer>

using monitor::NotesAutomation;

namespace app {

namespace {

constexpr platform::Seconds updaterDelay{3.0};

void post(const monitor::Shortcut& shortcut) {
    NotesAutomation::simulateKeyboardShortcut(shortcut.key, shortcut.modifiers);
}

} // namespace

AppDelegate::AppDelegate(platform::Platform& platform, settings::AppSettingsManager& settings)
    : platform_(platform)
    , settings_(settings)
    , updaterController_(*platform.updater)
    , updateController_(std::make_unique<updates::UpdateController>(platform))
    , updatePresenter_(updaterController_.setPresenter(*updateController_))
    , menuTracking_(statusMenu_.menu(), *platform.runLoop, *platform.pointerMonitor,
                    platform.statusItem->menuClosing()) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    setupMenuBar();
    platform_.windowServer->becomeAccessory();
    showFeedbackSheet_ = core::NotificationCenter::defaultCenter().addObserver(
        QStringLiteral("showFeedbackSheet"), [this] { openFeedback(); });
    setupMonitoring();
    instanceRequests_ = platform_.programInstance->setRequestHandler(
        [this](const platform::InstanceRequest& request) { obey(request); });
    platform_.runLoop->dispatchAfter(updaterDelay, [self = QPointer(this)] {
        if (self) {
            self->updaterController_.startUpdater();
        }
    });
}

void AppDelegate::applicationWillTerminate() {
    if (notesMonitor_) {
        notesMonitor_->stopMonitoring();
    }
    if (formattingBar_) {
        formattingBar_->hide();
    }
}

void AppDelegate::setupMenuBar() {
    connect(&statusMenu_.checkAccessibility(), &QAction::triggered, this,
            &AppDelegate::checkAccessibility);
    connect(&statusMenu_.settings(), &QAction::triggered, this, [this] { openSettings(); });
    connect(&statusMenu_.checkForUpdates(), &QAction::triggered, this,
            &AppDelegate::checkForUpdates);
    connect(&statusMenu_.feedback(), &QAction::triggered, this, [this] { openFeedback(); });
    connect(&statusMenu_.quit(), &QAction::triggered, QCoreApplication::instance(),
            &QCoreApplication::quit);
    const QString symbol = QStringLiteral("textformat.alt");
    statusItem_ = platform_.statusItem->show(symbol, statusIcon(*platform_.symbols, symbol),
                                             QStringLiteral("Corvane Quillet"), statusMenu_.menu());
}

void AppDelegate::setupMonitoring() {
    notesMonitor_ = std::make_unique<monitor::NotesMonitor>(platform_, settings_);
    connectSelectionToFormat();
    notesMonitor_->startMonitoring();
    if (QAction* status = statusMenu_.itemWithTag(StatusMenu::statusTag)) {
        status->setText(QStringLiteral("Status: Ready"));
    }
}

void AppDelegate::connectSelectionToFormat() {
    formattingBar_ = std::make_unique<bar::FormattingBarController>(platform_);
    notesMonitor_->onSelectionChanged = [self = QPointer(this)](bool visible,
                                                                const platform::Rect& rect) {
        if (visible) {
            NotesAutomation::targetApplication = self && self->notesMonitor_
                                                     ? self->notesMonitor_->targetApplication()
                                                     : std::nullopt;
        }
        if (!self || !self->formattingBar_) {
            return;
        }
        if (visible) {
            self->formattingBar_->show(rect);
        } else {
            self->formattingBar_->hide();
        }
    };
    formattingBar_->onFormatSelected = [self = QPointer(this)](bar::TextFormat format) {
        if (self) {
            post(NotesAutomation::formatShortcut(format));
        }
    };
    formattingBar_->onHeadingSelected = [](bar::HeadingLevel level) {
        post(NotesAutomation::headingShortcut(level));
    };
    formattingBar_->onOpenColorPicker = [] { NotesAutomation::showColorPicker(); };
}

void AppDelegate::checkAccessibility() {
    if (platform_.accessibility->isProcessTrusted(platform::TrustPrompt::Hidden)) {
        platform_.alerts->runModal(
            {platform::AlertStyle::Informational,
             QStringLiteral("Accessibility Access Granted"),
             QStringLiteral("Corvane Quillet has the required accessibility permissions."),
             {QStringLiteral("OK")}});
        return;
    }
    const int answer = platform_.alerts->runModal(
        {platform::AlertStyle::Warning,
         QStringLiteral("Accessibility Access Required"),
         QStringLiteral("Corvane Quillet needs accessibility access to detect text selection and "
                        "provide formatting features.\n\nPlease grant access in System Settings > "
                        "Privacy & Security > Accessibility."),
         {QStringLiteral("Open System Settings"), QStringLiteral("Cancel")}});
    if (answer != platform::Alerts::firstButtonReturn) {
        return;
    }
    if (!platform_.workspace->openUrl(QUrl(QStringLiteral(
            "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility")))) {
        core::log(u"this desktop has no accessibility settings to open");
        // Else the user could not grant it before the next start.
        platform_.accessibility->isProcessTrusted(platform::TrustPrompt::Shown);
    }
}

void AppDelegate::openSettings(const platform::ActivationToken& token) {
    if (!settingsWindow_) {
        settingsWindow_ = std::make_unique<ui::TitledWindow>(
            QStringLiteral("Corvane Quillet Settings"), QSize(500, 450));
        settingsWindow_->setContent(settings::SettingsView{settings_});
    }
    platform_.windowServer->bringToFront(*settingsWindow_, token);
}

void AppDelegate::checkForUpdates() {
    updaterController_.checkForUpdates();
}

void AppDelegate::openFeedback(const platform::ActivationToken& token) {
    const auto form = feedback::FeedbackForm::make(
        platform_, {.herkunft = QStringLiteral("Corvane Quillet – Hauptfenster"),
                    .onClose = [self = QPointer(this)] {
                        if (self && self->feedbackWindow_) {
                            self->feedbackWindow_->hide();
                        }
                    }});
    if (!feedbackWindow_) {
        feedbackWindow_ =
            std::make_unique<ui::TitledWindow>(QStringLiteral("Feedback senden"), QSize(540, 540));
    }
    feedbackWindow_->setContent(feedback::FeedbackSheet{form});
    platform_.windowServer->bringToFront(*feedbackWindow_, token);
}

void AppDelegate::obey(const platform::InstanceRequest& request) {
    using Kind = platform::InstanceRequest::Kind;
    switch (request.kind) {
    case Kind::Activate:
    case Kind::Settings:
        openSettings(request.token);
        break;
    case Kind::Feedback:
        openFeedback(request.token);
        break;
    case Kind::Quit:
        QCoreApplication::quit();
        break;
    }
}

} // namespace app
