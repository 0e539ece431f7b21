#include "app/StatusMenu.h"

#include <QAction>
#include <QKeySequence>

namespace app {

StatusMenu::StatusMenu() {
    addInertItem(QStringLiteral("Corvane Quillet"));
    menu_.addSeparator();
    addInertItem(QStringLiteral("Status: Ready"))->setData(statusTag);
    menu_.addSeparator();
    checkAccessibility_ = addItem(QStringLiteral("Check Accessibility..."));
    menu_.addSeparator();
    settings_ = addItem(QStringLiteral("Settings..."));
    settings_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    menu_.addSeparator();
    checkForUpdates_ = addItem(QStringLiteral("Auf Updates prüfen …"));
    feedback_ = addItem(QStringLiteral("Feedback senden …"));
    menu_.addSeparator();
    quit_ = addItem(QStringLiteral("Quit Corvane Quillet"));
    quit_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

QAction* StatusMenu::itemWithTag(int tag) const {
    for (QAction* action : menu_.actions()) {
        if (action->data() == QVariant(tag)) {
            return action;
        }
    }
    return nullptr;
}

QAction* StatusMenu::addItem(const QString& title) {
    QAction* action = menu_.addAction(title);
    // The toolkit would otherwise guess from the title and move the entry to another menu.
    action->setMenuRole(QAction::NoRole);
    return action;
}

QAction* StatusMenu::addInertItem(const QString& title) {
    QAction* action = addItem(title);
    action->setEnabled(false);
    return action;
}

} // namespace app
