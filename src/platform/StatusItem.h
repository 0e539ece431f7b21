#pragma once

#include "core/Registration.h"

#include <QIcon>
#include <QString>

class QMenu;

namespace platform {

/// The program's item in the menu bar. Main thread only.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Shows `icon`, following the menu bar's text colour, with `menu` behind it, for as long as
    /// the registration lives. Where the menu bar comes up later, the item appears then. The menu
    /// must outlive the registration.
    virtual core::Registration show(const QIcon& icon, const QString& accessibilityDescription,
                                    QMenu& menu) = 0;
};

} // namespace platform
