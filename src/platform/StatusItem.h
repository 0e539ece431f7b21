#pragma once

#include <QIcon>
#include <QString>

class QMenu;

namespace platform {

/// The program's item in the menu bar. Main thread only.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Shows `icon`, following the menu bar's text colour, with `menu` behind it. Where the menu
    /// bar comes up later, the item appears then. The menu must outlive this object.
    virtual void show(const QIcon& icon, const QString& accessibilityDescription, QMenu& menu) = 0;
};

} // namespace platform
