#pragma once

#include "fakes/HttpsServer.h"
#include "feedback/ErrorText.h"
#include "feedback/FeedbackError.h"
#include "feedback/FeedbackService.h"
#include "feedback/TransportError.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace feedback {

/// How one send ended: with an identifier or with one kind of error, and what the user reads then.
struct Outcome {
    QString id;
    std::optional<FeedbackError::Case> error;
    std::optional<QNetworkReply::NetworkError> transport;
    QString text;
};

/// Waiting for a task in a nested event loop never ends when the task throws; this one does not.
inline QCoro::Task<Outcome> settled(QCoro::Task<QString> task) {
    Outcome result;
    try {
        result.id = co_await task;
    } catch (const std::exception& error) {
        result.text = localizedDescription(error);
        if (const auto* own = dynamic_cast<const FeedbackError*>(&error)) {
            result.error = own->kind();
        } else if (const auto* transport = dynamic_cast<const TransportError*>(&error)) {
            result.transport = transport->code();
        }
    }
    co_return result;
}

/// A feedback server, and a record for it.
class Sending : public testing::Test {
protected:
    using Wish = fakes::HttpsServer::Wish;

    /// One server for all of them: making certificates takes its time.
    static void SetUpTestSuite() { shared = std::make_unique<fakes::HttpsServer>(); }
    static void TearDownTestSuite() { shared.reset(); }
    void SetUp() override { server.requests(); }

    QString endpoint(Wish wish = {.body = R"({"id":"r1"})"}) const {
        return server.address("https", wish);
    }

    FeedbackService service(const QString& endpoint,
                            std::chrono::milliseconds timeout = std::chrono::seconds(10)) {
        return FeedbackService(endpoint,
                               {[this]() -> QNetworkAccessManager& { return session; }, timeout, limits});
    }

    Outcome send(const QString& endpoint,
                 std::chrono::milliseconds timeout = std::chrono::seconds(10)) {
        return QCoro::waitFor(settled(service(endpoint, timeout).send(payload)));
    }

    /// The one request that the server got since the last question.
    QJsonObject onlyRequest() {
        const QJsonArray requests = server.requests();
        EXPECT_EQ(requests.size(), 1);
        return requests.first().toObject();
    }

    static inline std::unique_ptr<fakes::HttpsServer> shared;
    fakes::HttpsServer& server = *shared;
    QNetworkAccessManager session;
    BoundedAnswer::Limits limits;
    FeedbackService::Payload payload{
        QStringLiteral("Hallo"),   QStringLiteral("anna"),       QStringLiteral("1.0.2 (7)"),
        QStringLiteral("macOS 12.0.0"), QStringLiteral("Fenster"), QStringLiteral("eins\nzwei"),
        std::nullopt,
    };
};

} // namespace feedback
