#pragma once

#include "platform/linux/atspi/Request.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDeadlineTimer>

#include <chrono>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

/// What one look at another application may ask: any number of calls that share one deadline.
/// Once the deadline has passed, every further answer is an error at once. Any thread, one at a
/// time.
class Inquiry {
public:
    Inquiry(QDBusConnection connection, std::chrono::milliseconds budget);

    /// The reply to a request, or an error message.
    QDBusMessage ask(const Request& request);

    /// Sends all requests before it waits for the first reply, so that the way there and back is
    /// paid once. The replies stand in the order of the requests.
    std::vector<QDBusMessage> askAll(const std::vector<Request>& requests);

    /// The reply's only value, if it has exactly the type T.
    template <typename T>
    std::optional<T> ask(const Request& request) {
        return decode<T>(ask(request));
    }

    /// A value out of a reply that may be an error or of a wrong type.
    template <typename T>
    static std::optional<T> decode(const QDBusMessage& reply, qsizetype index = 0);

    /// Whether a reply did not come in time.
    bool ranOut() const { return ranOut_; }
    std::chrono::milliseconds remaining() const;
    int callCount() const { return callCount_; }

private:
    static std::optional<QVariant> argument(const QDBusMessage& reply, qsizetype index);

    QDBusConnection connection_;
    QDeadlineTimer deadline_;
    bool ranOut_ = false;
    int callCount_ = 0;
};

template <typename T>
std::optional<T> Inquiry::decode(const QDBusMessage& reply, qsizetype index) {
    const auto value = argument(reply, index);
    if (!value) {
        return std::nullopt;
    }
    if (value->metaType() == QMetaType::fromType<T>()) {
        return value->template value<T>();
    }
    if (value->metaType() != QMetaType::fromType<QDBusArgument>()) {
        return std::nullopt;
    }
    // Constant, since the other beginStructure() writes; and the signature first, since reading
    // what is not there ends in whatever the library makes of it.
    const auto compound = value->template value<QDBusArgument>();
    if (compound.currentSignature() !=
        QLatin1StringView(QDBusMetaType::typeToSignature(QMetaType::fromType<T>()))) {
        return std::nullopt;
    }
    return qdbus_cast<T>(std::as_const(compound));
}

} // namespace platform
