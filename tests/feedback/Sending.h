#pragma once

#include "feedback/FeedbackError.h"
#include "feedback/FeedbackServer.h"
#include "feedback/FeedbackService.h"

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
    bool notJson = false;
    QString text;
};

Outcome outcome(QCoro::Task<QString> task);

/// A feedback server and a session that trusts its certificate.
class Sending : public testing::Test {
protected:
    /// One server for all of them: making certificates takes its time.
    static void SetUpTestSuite() { shared = std::make_unique<FeedbackServer>(); }
    static void TearDownTestSuite() { shared.reset(); }
    void SetUp() override { server.requests(); }

    FeedbackService service(const QString& endpoint,
                            std::chrono::milliseconds timeout = std::chrono::seconds(10));

    /// Sends one record there and expects that the server got it exactly once.
    Outcome sendTo(const QString& endpoint);

    /// Sends this record and answers the request as the server read it.
    QJsonObject requestFor(const FeedbackService::Payload& payload);

    static inline std::unique_ptr<FeedbackServer> shared;
    FeedbackServer& server = *shared;
    TrustingSession session{[this] { return server.authority(); }};
    FeedbackService::Payload payload{
        QStringLiteral("Hallo"),
        QStringLiteral("anna"),
        QStringLiteral("1.0.2 (7)"),
        QStringLiteral("macOS 12.0.0"),
        QStringLiteral("Fenster"),
        QStringLiteral("eins\nzwei"),
        std::nullopt,
    };
};

} // namespace feedback
