#include "platform/linux/freedesktop/StatusNotifierStatusItem.h"

#include <QCursor>
#include <QEvent>
#include <QMenu>
#include <QSystemTrayIcon>

namespace platform {

StatusNotifierStatusItem::StatusNotifierStatusItem(RunLoop& runLoop, TrayHost& statusNotifier,
                                                   TrayHost& xembed)
    : runLoop_(runLoop)
    , statusNotifier_(statusNotifier)
    , xembed_(xembed) {}

StatusNotifierStatusItem::~StatusNotifierStatusItem() = default;

core::Registration StatusNotifierStatusItem::show(const QString&, const QIcon& icon,
                                                  const QString& accessibilityDescription,
                                                  QMenu& menu) {
    icon_ = icon;
    description_ = accessibilityDescription;
    menu_ = &menu;
    menu.installEventFilter(this);
    arrival_.emplace(runLoop_, statusNotifier_, xembed_, [this] { makeIcon(); });
    return core::Registration([this] { remove(); });
}

bool StatusNotifierStatusItem::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange && trayIcon_) {
        trayIcon_->setIcon(icon_);
    }
    return QObject::eventFilter(watched, event);
}

void StatusNotifierStatusItem::makeIcon() {
    trayIcon_ = std::make_unique<QSystemTrayIcon>(icon_);
    trayIcon_->setToolTip(description_);
    trayIcon_->setContextMenu(menu_);
    // A menu-bar item opens its menu with either button.
    connect(trayIcon_.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger) {
                    menu_->popup(QCursor::pos());
                }
            });
    trayIcon_->show();
}

void StatusNotifierStatusItem::remove() {
    arrival_.reset();
    trayIcon_.reset();
    if (menu_) {
        menu_->removeEventFilter(this);
    }
}

} // namespace platform
