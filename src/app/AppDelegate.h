#pragma once

#include "app/MenuTracking.h"
#include "app/StatusMenu.h"
#include "core/Registration.h"
#include "platform/Platform.h"

#include <QObject>

#include <memory>

namespace bar {
class FormattingBarController;
}
namespace ui {
class TitledWindow;
}
namespace monitor {
class NotesMonitor;
}
namespace settings {
class AppSettingsManager;
}
namespace updates {
class UpdateController;
}

namespace app {

/// Starts the program, acts on its menu, and connects a selection with the bar and the bar with
/// keystroke automation. Main thread only.
class AppDelegate : public QObject {
public:
    /// Both must outlive the delegate.
    AppDelegate(platform::Platform& platform, settings::AppSettingsManager& settings);
    ~AppDelegate() override;

    void applicationDidFinishLaunching();
    void applicationWillTerminate();

    void checkAccessibility();
    void openSettings(const platform::ActivationToken& token = {});
    void checkForUpdates();
    void openFeedback(const platform::ActivationToken& token = {});

    /// Null before the start.
    monitor::NotesMonitor* notesMonitor() const { return notesMonitor_.get(); }
    bar::FormattingBarController* formattingBar() const { return formattingBar_.get(); }
    /// Null before the settings were first opened.
    ui::TitledWindow* settingsWindow() const { return settingsWindow_.get(); }
    /// Null before the feedback form was first opened.
    ui::TitledWindow* feedbackWindow() const { return feedbackWindow_.get(); }

private:
    void setupMenuBar();
    void setupMonitoring();
    void connectSelectionToFormat();
    void obey(const platform::InstanceRequest& request);

    platform::Platform& platform_;
    settings::AppSettingsManager& settings_;
    platform::Updater& updaterController_;
    std::unique_ptr<updates::UpdateController> updateController_;
    core::Registration updatePresenter_;

    StatusMenu statusMenu_;
    MenuTracking menuTracking_;
    core::Registration statusItem_;
    core::Registration showFeedbackSheet_;
    core::Registration instanceRequests_;
    std::unique_ptr<bar::FormattingBarController> formattingBar_;
    std::unique_ptr<monitor::NotesMonitor> notesMonitor_;
    std::unique_ptr<ui::TitledWindow> settingsWindow_;
    std::unique_ptr<ui::TitledWindow> feedbackWindow_;
};

} // namespace app
