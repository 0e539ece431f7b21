#pragma once

#include "platform/StatusItem.h"

#include <memory>

class QSystemTrayIcon;

namespace platform {

/// The item in the menu bar, which the toolkit makes: an icon that takes the menu bar's colour, and
/// a native menu.
class TrayStatusItem final : public StatusItem {
public:
    TrayStatusItem();
    ~TrayStatusItem() override;

    core::Registration show(const QString& symbolName, const QIcon& icon,
                            const QString& accessibilityDescription, QMenu& menu) override;
    MenuClosing menuClosing() const override { return MenuClosing::Told; }

private:
    std::unique_ptr<QSystemTrayIcon> item_;
};

} // namespace platform
