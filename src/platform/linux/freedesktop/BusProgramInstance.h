#pragma once

#include "platform/ProgramInstance.h"
#include "platform/linux/freedesktop/ApplicationObject.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDeadlineTimer>

#include <chrono>

namespace platform {

/// The one program of a session is the owner of a name on its bus. Without a bus every process is
/// the first.
class BusProgramInstance final : public ProgramInstance {
public:
    /// Long enough for a program that has only just been started and is still getting ready.
    static constexpr std::chrono::milliseconds defaultLimit{5000};

    /// `token` is what the desktop gave to this start, `limit` how long claim() may take in all.
    BusProgramInstance(const QDBusConnection& bus, ActivationToken token,
                       std::chrono::milliseconds limit = defaultLimit);
    ~BusProgramInstance() override;

    Claim claim(InstanceRequest::Kind asked) override;
    core::Registration setRequestHandler(Handler handler) override;

private:
    Claim claimName(InstanceRequest::Kind asked);
    QDBusMessage call(const QDBusMessage& message, const QDeadlineTimer& deadline) const;
    QDBusMessage requestName(const QDeadlineTimer& deadline) const;
    QDBusMessage askOwner(InstanceRequest::Kind asked, const QDeadlineTimer& deadline) const;

    QDBusConnection bus_;
    ActivationToken token_;
    std::chrono::milliseconds limit_;
    ApplicationObject object_;
};

} // namespace platform
