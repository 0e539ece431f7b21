#pragma once

#include "core/Observers.h"
#include "platform/linux/TrayHost.h"

#include <QDBusConnection>
#include <QObject>

class QDBusServiceWatcher;

namespace platform {

/// Whether a StatusNotifier host is registered with the session's watcher, learnt from the bus
/// without ever waiting for an answer.
class StatusNotifierHost final : public QObject, public TrayHost {
    Q_OBJECT

public:
    explicit StatusNotifierHost(const QDBusConnection& bus);
    ~StatusNotifierHost() override;

    bool isThere() const override { return there_; }
    core::Registration observe(std::function<void()> handler) override;

private Q_SLOTS:
    void ask();

private:
    void setThere(bool there);

    QDBusConnection bus_;
    QDBusServiceWatcher* watcherService_ = nullptr;
    bool there_ = false;
    /// Answers to a question asked of a watcher that is gone by now do not count.
    unsigned question_ = 0;
    core::Observers<> changed_;
};

} // namespace platform
