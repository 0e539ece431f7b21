#include "platform/macos/ApplicationMenu.h"

#include <QAction>
#include <QMenu>

namespace platform {

ApplicationMenu::ApplicationMenu(const std::function<void()>& openSettings)
    : settings_(*bar_.addMenu(QStringLiteral("Corvane Quillet"))
                     ->addAction(QStringLiteral("Settings..."))) {
    settings_.setObjectName(QStringLiteral("settings"));
    settings_.setMenuRole(QAction::PreferencesRole);
    settings_.setShortcut(QKeySequence::Preferences);
    QObject::connect(&settings_, &QAction::triggered, &bar_, openSettings);
}

} // namespace platform
