#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace platform {

/// Gives the program's windows a dark palette while the desktop's portal says that the user prefers
/// that. Where the toolkit knows the desktop's own palette and that is dark, it stays.
class DesktopColorScheme final : public QObject {
    Q_OBJECT

public:
    explicit DesktopColorScheme(const QDBusConnection& bus);

private Q_SLOTS:
    void settingChanged(const QDBusMessage& signal);

private:
    void take(QVariant preference);

    bool isOurPalette_ = false;
};

} // namespace platform
