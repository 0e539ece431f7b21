#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace platform {

/// Hears that the daemon of a bus is gone.
class BusLoss final : public QObject {
    Q_OBJECT

public:
    /// Calls `lost` once, from the event loop; never for a bus that was not connected.
    BusLoss(QDBusConnection bus, std::function<void()> lost);
    ~BusLoss() override;

private Q_SLOTS:
    void heardDisconnected();

private:
    std::function<void()> lost_;
};

} // namespace platform
