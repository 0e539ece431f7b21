#pragma once

#include "platform/LoginItem.h"
#include "platform/qt/WholeFile.h"

namespace platform {

/// Start at login as an autostart entry in the user's configuration.
class XdgAutostartLoginItem final : public LoginItem {
public:
    /// The entry named after the program, in `autostart/` of the user's configuration folder.
    static QString defaultPath();

    /// The entry's path and the program that it starts.
    XdgAutostartLoginItem(const QString& path, QString executable);

    /// Enabled when the entry is there and says nothing else.
    LoginItemStatus status() override;
    [[nodiscard]] Error registerItem() override;
    [[nodiscard]] Error unregisterItem() override;

private:
    WholeFile entry_;
    QString executable_;
};

} // namespace platform
