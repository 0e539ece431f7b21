#include "feedback/Sending.h"

#include "feedback/ErrorText.h"
#include "feedback/TransportError.h"

#include <nlohmann/json.hpp>

namespace feedback {

namespace {

/// Waiting for a task in a nested event loop never ends when the task throws; this one does not.
QCoro::Task<Outcome> settled(QCoro::Task<QString> task) {
    Outcome result;
    try {
        result.id = co_await task;
    } catch (const std::exception& error) {
        result.text = localizedDescription(error);
        if (const auto* own = dynamic_cast<const FeedbackError*>(&error)) {
            result.error = own->kind();
        } else if (const auto* transport = dynamic_cast<const TransportError*>(&error)) {
            result.transport = transport->code();
        } else {
            result.notJson = dynamic_cast<const nlohmann::json::parse_error*>(&error) != nullptr;
        }
    }
    co_return result;
}

} // namespace

Outcome outcome(QCoro::Task<QString> task) {
    return QCoro::waitFor(settled(std::move(task)));
}

FeedbackService Sending::service(const QString& endpoint, std::chrono::milliseconds timeout) {
    return FeedbackService(endpoint,
                           {[this]() -> QNetworkAccessManager& { return session; }, timeout});
}

Outcome Sending::sendTo(const QString& endpoint) {
    Outcome result = outcome(service(endpoint).send(payload));
    EXPECT_EQ(server.requests().size(), 1);
    return result;
}

QJsonObject Sending::requestFor(const FeedbackService::Payload& sent) {
    EXPECT_EQ(outcome(service(server.endpoint("https")).send(sent)).id, u"r1");
    const QJsonArray requests = server.requests();
    EXPECT_EQ(requests.size(), 1);
    return requests.first().toObject();
}

} // namespace feedback
