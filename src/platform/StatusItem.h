#pragma once

#include "core/Registration.h"

#include <QIcon>
#include <QString>

class QMenu;

namespace platform {

/// Whether a menu that the program itself does not draw surely says when it is closed.
enum class MenuClosing { Told, Guessed };

/// The program's item in the menu bar. Main thread only.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Shows the system's own symbol of that name, where the menu bar takes symbols, and otherwise
    /// `icon`, following the menu bar's text colour, with `menu` behind it, for as long as the
    /// registration lives. Where the menu bar comes up later, the item appears then. The menu
    /// must outlive the registration.
    virtual core::Registration show(const QString& symbolName, const QIcon& icon,
                                    const QString& accessibilityDescription, QMenu& menu) = 0;

    virtual MenuClosing menuClosing() const = 0;
};

} // namespace platform
