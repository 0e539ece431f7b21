#include "platform/macos/TrayStatusItem.h"

#include <QSystemTrayIcon>

namespace platform {

TrayStatusItem::TrayStatusItem() = default;
TrayStatusItem::~TrayStatusItem() = default;

core::Registration TrayStatusItem::show(const QString& symbolName, const QIcon& icon,
                                        const QString& accessibilityDescription, QMenu& menu) {
    // Later versions of the toolkit take the system's symbols for a theme, and give the item the
    // symbol itself and its width.
    QIcon mask = QIcon::fromTheme(symbolName, icon);
    mask.setIsMask(true);
    item_ = std::make_unique<QSystemTrayIcon>(mask);
    item_->setToolTip(accessibilityDescription);
    item_->setContextMenu(&menu);
    item_->show();
    return core::Registration([this] { item_.reset(); });
}

} // namespace platform
