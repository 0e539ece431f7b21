#pragma once

#include "platform/linux/atspi/FakeApplication.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <memory>
#include <vector>

namespace fakes {

/// A message bus of its own.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    QString address() const { return address_; }
    QDBusConnection connect() const;

    /// A paused bus takes messages and passes none on.
    void setPaused(bool paused);

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
};

/// A session with an accessibility bus, its launcher and its registry, and the applications that a
/// test puts there.
class FakeDesktop {
public:
    FakeDesktop();
    ~FakeDesktop();

    QDBusConnection session() const { return session_; }
    FakeApplication& addApplication();
    void restartAccessibilityBus();
    void stopAccessibilityBus();
    void pauseAccessibilityBus(bool paused) { accessibilityBus_->setPaused(paused); }

    void setEnabled(bool enabled);
    bool isEnabled() const;

private:
    class Launcher;
    class Registry;

    QThread server_;
    PrivateBus sessionBus_;
    QDBusConnection session_;
    std::unique_ptr<Launcher> launcher_;
    std::unique_ptr<PrivateBus> accessibilityBus_;
    std::unique_ptr<Registry> registry_;
    std::vector<std::unique_ptr<FakeApplication>> applications_;
};

} // namespace fakes
