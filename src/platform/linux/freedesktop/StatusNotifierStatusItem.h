#pragma once

#include "platform/StatusItem.h"
#include "platform/linux/freedesktop/TrayArrival.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QSystemTrayIcon;

namespace platform {

/// The status item as the toolkit's tray icon: a StatusNotifierItem, or an icon embedded in a tray
/// of the older kind.
class StatusNotifierStatusItem final : public QObject, public StatusItem {
public:
    StatusNotifierStatusItem(RunLoop& runLoop, TrayHost& statusNotifier, TrayHost& xembed);
    ~StatusNotifierStatusItem() override;

    core::Registration show(const QString& symbolName, const QIcon& icon,
                            const QString& accessibilityDescription, QMenu& menu) override;
    /// The panel draws it.
    MenuClosing menuClosing() const override { return MenuClosing::Guessed; }

    /// Sends the icon again when the desktop's text colour, which the menu shares, has changed.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeIcon();
    void remove();

    RunLoop& runLoop_;
    TrayHost& statusNotifier_;
    TrayHost& xembed_;
    QIcon icon_;
    QString description_;
    QPointer<QMenu> menu_;
    std::optional<TrayArrival> arrival_;
    std::unique_ptr<QSystemTrayIcon> trayIcon_;
};

} // namespace platform
