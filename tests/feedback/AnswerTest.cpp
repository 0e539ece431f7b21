// What comes of the server's answer.
#include "feedback/Sending.h"

#include <gmock/gmock.h>

namespace feedback {

using HttpError = FeedbackError::HttpError;
using InvalidResponse = FeedbackError::InvalidResponse;
using InvalidUrl = FeedbackError::InvalidUrl;

TEST_F(Sending, EveryStatusOf200IsSuccessAndEveryOtherAnErrorRedirectsIncluded) {
    for (const int status : {200, 201, 299}) {
        EXPECT_EQ(send(endpoint({.status = status, .body = R"({"id":"r1"})"})).id, u"r1") << status;
    }
    for (const int status :
         {300, 301, 303, 307, 308, 400, 401, 403, 404, 405, 409, 410, 422, 500, 503, 599}) {
        server.requests();
        const Outcome result = send(endpoint(
            {.status = status,
             .body = "nö",
             .header = QStringLiteral("Location:/elsewhere?status=200&body=e30=")}));
        EXPECT_EQ(result.error, FeedbackError::Case(HttpError{status, QStringLiteral("nö")}))
            << status << ": " << result.text.toStdString();
        EXPECT_EQ(result.text, QStringLiteral("HTTP %1: nö").arg(status));
        EXPECT_EQ(server.requests().size(), 1) << status;
    }
}

TEST_F(Sending, AnErrorShowsTheFirst200CharactersOfItsBody) {
    const QString character =
        QStringLiteral("👩🏽‍💻🇩🇪e\u0301\u0323🏳️‍🌈각");
    const QString sent = character.repeated(50); // 250 as a reader counts them
    const Outcome result = send(endpoint({.status = 404, .body = sent.toUtf8()}));
    EXPECT_EQ(result.error, FeedbackError::Case(HttpError{404, sent}));
    EXPECT_EQ(result.text, QStringLiteral("HTTP 404: ") + character.repeated(40));
}

TEST_F(Sending, OnlyAnObjectWithATextualIdNamesARecord) {
    EXPECT_EQ(send(endpoint({.body = " {\"x\":[1],\"id\":\"ä\\u00df 1\"}\n"})).id, u"äß 1");
    for (const char* body : {R"({"id":7})", R"({"id":null})", R"({"ID":"r1"})", "{}", R"(["id"])",
                             R"("id")", "null", R"([{"id":"r1"}])"}) {
        const Outcome result = send(endpoint({.body = body}));
        EXPECT_EQ(result.error, FeedbackError::Case(InvalidResponse{})) << body;
        EXPECT_EQ(result.text, u"Ungültige Antwort vom Feedback-Server");
    }
}

TEST_F(Sending, AConnectionThatDropsOrStaysSilentIsAnErrorAndTheRecordIsNotSentAgain) {
    const struct {
        QString endpoint;
        QString text;
    } rows[]{{endpoint({.body = "{}", .missing = 1}), QStringLiteral("Connection closed")},
             {endpoint({.end = QStringLiteral("drop")}), QStringLiteral("Connection closed")},
             {endpoint({.end = QStringLiteral("silent")}),
              QStringLiteral("Socket operation timed out")}};
    for (const auto& row : rows) {
        const Outcome result = send(row.endpoint, std::chrono::milliseconds(500));
        EXPECT_TRUE(result.transport);
        EXPECT_EQ(result.text, row.text);
        EXPECT_EQ(server.requests().size(), 1);
    }
    EXPECT_EQ(send(server.address("mute"), std::chrono::milliseconds(150)).transport,
              QNetworkReply::OperationCanceledError);
}

TEST_F(Sending, AnAnswerWithoutEndIsGivenUp) {
    EXPECT_EQ(send(endpoint({.end = QStringLiteral("endless")})).error,
              FeedbackError::Case(InvalidResponse{}));
    EXPECT_LT(server.sent(), 30e6);
    limits.time = std::chrono::milliseconds(300);
    EXPECT_EQ(send(endpoint({.end = QStringLiteral("drip")})).text, u"Socket operation timed out");
}

TEST_F(Sending, ACertificateThatDoesNotHoldEndsTheConnectionBeforeAnythingIsSent) {
    for (const char* port : {"other", "stranger"}) {
        const Outcome result = send(server.address(port));
        EXPECT_EQ(result.transport, QNetworkReply::SslHandshakeFailedError);
        EXPECT_THAT(result.text.toStdString(), testing::HasSubstr("certificate"));
    }
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(Sending, AnEndpointThatIsNoUrlOrNoServerFailsByItself) {
    for (const QString& endpoint :
         {QString(), QStringLiteral("https://exa mple/"), QStringLiteral("http://h:x/")}) {
        const Outcome result = send(endpoint);
        EXPECT_EQ(result.error, FeedbackError::Case(InvalidUrl{})) << endpoint.toStdString();
        EXPECT_EQ(result.text, u"Ungültige Feedback-URL");
    }
    EXPECT_EQ(send(QStringLiteral("file:///etc/hostname")).error,
              FeedbackError::Case(InvalidResponse{}));
    for (const QString& endpoint : {QStringLiteral("feedback"), QStringLiteral("https:///x")}) {
        const Outcome result = send(endpoint);
        EXPECT_TRUE(result.transport) << endpoint.toStdString();
        EXPECT_FALSE(result.text.isEmpty());
    }
}

} // namespace feedback
