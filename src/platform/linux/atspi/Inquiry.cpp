#include "platform/linux/atspi/Inquiry.h"

#include <QDBusError>
#include <QDBusPendingCall>
#include <QDBusVariant>

namespace platform {

namespace {

/// By how much the library's time limit may fire before ours has passed: its timers are coarse and
/// may be early by a twentieth, and no deadline here is longer than half a second.
constexpr std::chrono::milliseconds timerGrain{30};

} // namespace

Inquiry::Inquiry(QDBusConnection connection, std::chrono::milliseconds budget)
    : connection_(std::move(connection))
    , deadline_(budget) {}

std::chrono::milliseconds Inquiry::remaining() const {
    return std::chrono::milliseconds(deadline_.remainingTime());
}

QDBusMessage Inquiry::ask(const Request& request) {
    return askAll({request}).front();
}

std::vector<QDBusMessage> Inquiry::askAll(const std::vector<Request>& requests) {
    std::vector<QDBusPendingCall> pending;
    pending.reserve(requests.size());
    for (const auto& request : requests) {
        const auto timeout = static_cast<int>(remaining().count());
        if (timeout <= 0) {
            ranOut_ = true;
            pending.push_back(QDBusPendingCall::fromError(
                QDBusError(QDBusError::NoReply, QStringLiteral("the deadline has passed"))));
            continue;
        }
        ++callCount_;
        pending.push_back(connection_.asyncCall(request.message(), timeout));
    }

    std::vector<QDBusMessage> replies;
    replies.reserve(requests.size());
    for (auto& call : pending) {
        call.waitForFinished();
        const auto error = call.error().type();
        const bool unanswered = error == QDBusError::NoReply || error == QDBusError::TimedOut ||
                                error == QDBusError::Timeout;
        // "No reply" is also what the bus says when the other side ends.
        ranOut_ = ranOut_ || (unanswered && remaining() <= timerGrain);
        replies.push_back(call.reply());
    }
    return replies;
}

std::optional<QVariant> Inquiry::argument(const QDBusMessage& reply, qsizetype index) {
    if (reply.type() != QDBusMessage::ReplyMessage || index >= reply.arguments().size()) {
        return std::nullopt;
    }
    const QVariant value = reply.arguments().at(index);
    if (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        return value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace platform
