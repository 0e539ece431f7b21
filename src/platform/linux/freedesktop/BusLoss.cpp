#include "platform/linux/freedesktop/BusLoss.h"

#include <utility>

namespace platform {

BusLoss::BusLoss(QDBusConnection bus, std::function<void()> lost)
    : lost_(std::move(lost)) {
    // The D-Bus library itself sends this one, to its own process.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                SLOT(heardDisconnected()));
}

BusLoss::~BusLoss() = default;

void BusLoss::heardDisconnected() {
    if (const auto lost = std::exchange(lost_, nullptr)) {
        lost();
    }
}

} // namespace platform
