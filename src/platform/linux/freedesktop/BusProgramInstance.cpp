#include "platform/linux/freedesktop/BusProgramInstance.h"

#include "core/Log.h"
#include "core/ProgramIdentity.h"

#include <QDBusError>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

const QString& programName() {
    static const QString name = core::programIdentifier();
    return name;
}

/// The desktop derives it from the name in the same way.
const QString& programPath() {
    static const QString path = u'/' + core::programIdentifier().replace(u'.', u'/');
    return path;
}

/// From the bus's own protocol.
constexpr quint32 doNotQueue = 4;
constexpr quint32 primaryOwner = 1;
constexpr quint32 alreadyOwner = 4;

bool ownerIsGone(const QDBusMessage& answer, const QDeadlineTimer& deadline) {
    switch (QDBusError(answer).type()) {
    case QDBusError::ServiceUnknown:
        return true;
    case QDBusError::NoReply:
        // The bus says the same of an owner that ended before it answered and of one that is slow.
        return !deadline.hasExpired();
    default:
        return false;
    }
}

} // namespace

BusProgramInstance::BusProgramInstance(const QDBusConnection& bus, ActivationToken token,
                                       std::chrono::milliseconds limit)
    : bus_(bus)
    , token_(std::move(token))
    , limit_(limit) {}

BusProgramInstance::~BusProgramInstance() {
    bus_.unregisterObject(programPath());
}

ProgramInstance::Claim BusProgramInstance::claim(InstanceRequest::Kind asked) {
    const Claim claim = claimName(asked);
    if (claim == Claim::First && asked != InstanceRequest::Kind::Activate) {
        object_.accept({asked, token_});
    }
    return claim;
}

ProgramInstance::Claim BusProgramInstance::claimName(InstanceRequest::Kind asked) {
    if (!bus_.isConnected()) {
        return Claim::First;
    }
    // Before the name is asked for: from then on others may call, and their calls wait until this
    // process has an event loop.
    bus_.registerObject(programPath(), &object_, QDBusConnection::ExportScriptableInvokables);
    const QDeadlineTimer deadline(limit_);
    for (;;) {
        const QDBusMessage owned = requestName(deadline);
        if (owned.type() != QDBusMessage::ReplyMessage) {
            core::log(QStringLiteral("cannot tell whether the program runs already: ") +
                      owned.errorName());
            return Claim::First;
        }
        const quint32 result = owned.arguments().value(0).toUInt();
        if (result == primaryOwner || result == alreadyOwner) {
            return Claim::First;
        }
        const QDBusMessage told = askOwner(asked, deadline);
        if (told.type() == QDBusMessage::ReplyMessage) {
            return Claim::HandedOver;
        }
        if (!ownerIsGone(told, deadline)) {
            core::log(QStringLiteral("the program runs already, but does not answer: ") +
                      told.errorName());
            return Claim::Unanswered;
        }
    }
}

core::Registration BusProgramInstance::setRequestHandler(Handler handler) {
    return object_.setRequestHandler(std::move(handler));
}

QDBusMessage BusProgramInstance::call(const QDBusMessage& message,
                                      const QDeadlineTimer& deadline) const {
    // Never 0 or less, for which the bus would put its own, long limit.
    const auto remaining = std::max<qint64>(deadline.remainingTime(), 1);
    return bus_.call(message, QDBus::Block, static_cast<int>(remaining));
}

QDBusMessage BusProgramInstance::requestName(const QDeadlineTimer& deadline) const {
    QDBusMessage request = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    request << programName() << doNotQueue;
    return call(request, deadline);
}

QDBusMessage BusProgramInstance::askOwner(InstanceRequest::Kind asked,
                                          const QDeadlineTimer& deadline) const {
    const std::optional<QString> action = actionName(asked);
    QDBusMessage request = QDBusMessage::createMethodCall(
        programName(), programPath(), QStringLiteral("org.freedesktop.Application"),
        action ? QStringLiteral("ActivateAction") : QStringLiteral("Activate"));
    if (action) {
        request << *action << QVariantList{};
    }
    request << platformData(token_);
    // An owner that has just ended is replaced by this process, not by one that the bus starts.
    request.setAutoStartService(false);
    return call(request, deadline);
}

std::unique_ptr<ProgramInstance> makeProgramInstance() {
    const ActivationToken token{qEnvironmentVariable("DESKTOP_STARTUP_ID"),
                                qEnvironmentVariable("XDG_ACTIVATION_TOKEN")};
    return std::make_unique<BusProgramInstance>(
        QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                      QStringLiteral("program-instance")),
        token);
}

} // namespace platform
