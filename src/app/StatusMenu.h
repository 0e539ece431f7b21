#pragma once

#include <QMenu>

class QAction;

namespace app {

/// The menu behind the status item: twelve entries, of which the delegate connects those that act.
class StatusMenu {
public:
    /// The tag of the status line.
    static constexpr int statusTag = 100;

    StatusMenu();

    QMenu& menu() { return menu_; }

    QAction& checkAccessibility() { return *checkAccessibility_; }
    QAction& settings() { return *settings_; }
    QAction& checkForUpdates() { return *checkForUpdates_; }
    QAction& feedback() { return *feedback_; }
    QAction& quit() { return *quit_; }

    /// The first entry with this tag; null when there is none.
    QAction* itemWithTag(int tag) const;

private:
    QAction* addItem(const QString& title);
    /// Without an action of its own an entry is greyed out.
    QAction* addInertItem(const QString& title);

    QMenu menu_;
    QAction* checkAccessibility_ = nullptr;
    QAction* settings_ = nullptr;
    QAction* checkForUpdates_ = nullptr;
    QAction* feedback_ = nullptr;
    QAction* quit_ = nullptr;
};

} // namespace app
