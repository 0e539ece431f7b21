#pragma once

#include <QMenuBar>

#include <functional>

namespace platform {

/// The menu bar that the system shows while one of the program's windows is active. Its one entry
/// is the settings, which the toolkit moves into the application's menu; the system adds the rest.
class ApplicationMenu {
public:
    explicit ApplicationMenu(const std::function<void()>& openSettings);

    QAction& settings() const { return settings_; }

private:
    /// Without a parent: the menu bar of every window.
    QMenuBar bar_;
    QAction& settings_;
};

} // namespace platform
