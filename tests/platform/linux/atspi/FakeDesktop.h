#pragma once

#include "platform/linux/PrivateBus.h"
#include "platform/linux/atspi/FakeApplication.h"

#include <atomic>

namespace fakes {

/// A session with an application in it. One bus is the session's and that of accessibility, with
/// the launcher and the registry on it.
class FakeDesktop {
public:
    FakeDesktop();
    ~FakeDesktop();

    QDBusConnection session() const { return session_; }
    void pauseBus(bool paused) { bus_.setPaused(paused); }

    /// Whether accessibility is switched on, by the test or by the program.
    std::atomic<bool> isEnabled = true;

    FakeApplication application;

private:
    QDBusMessage answer(const QDBusMessage& call);

    PrivateBus bus_;
    QDBusConnection session_ = bus_.connect();
    QDBusConnection launcher_ = bus_.connect();
    QThread server_;
    Responder services_{launcher_, [this](const QDBusMessage& call) { return answer(call); },
                        &server_};
};

} // namespace fakes
