// What comes of the server's answer.
#include "feedback/Sending.h"

#include <gmock/gmock.h>

namespace feedback {

using HttpError = FeedbackError::HttpError;
using InvalidResponse = FeedbackError::InvalidResponse;
using InvalidUrl = FeedbackError::InvalidUrl;

TEST_F(Sending, EveryStatusOf200IsSuccessAndEveryOtherAnError) {
    for (const int status : {200, 201, 299}) {
        EXPECT_EQ(sendTo(server.endpoint("https", {.status = status})).id, u"r1") << status;
    }
    for (const int status :
         {300, 400, 401, 403, 404, 405, 409, 410, 418, 422, 500, 501, 503, 599}) {
        const Outcome result = sendTo(server.endpoint("https", {.status = status, .body = "nö"}));
        EXPECT_EQ(result.error, FeedbackError::Case(HttpError{status, QStringLiteral("nö")}))
            << status << ": " << result.text.toStdString();
        EXPECT_EQ(result.text, QStringLiteral("HTTP %1: nö").arg(status));
    }
}

TEST_F(Sending, ARedirectIsAnErrorAndLeadsNowhere) {
    for (const int status : {301, 302, 303, 307, 308}) {
        const Outcome result = sendTo(server.endpoint(
            "https", {.status = status,
                      .body = "moved",
                      .header = QStringLiteral("Location:/elsewhere?status=200&body=e30=")}));
        EXPECT_EQ(result.error, FeedbackError::Case(HttpError{status, QStringLiteral("moved")}));
    }
}

TEST_F(Sending, AnErrorShowsTheFirst200CharactersOfItsBody) {
    const QString character =
        QStringLiteral("👩🏽‍💻🇩🇪e\u0301\u0323🏳️‍🌈각");
    const QString sent = character.repeated(50); // 250 as a reader counts them
    const Outcome result = sendTo(server.endpoint("https", {.status = 404, .body = sent.toUtf8()}));
    EXPECT_EQ(result.error, FeedbackError::Case(HttpError{404, sent}));
    EXPECT_EQ(result.text, QStringLiteral("HTTP 404: ") + character.repeated(40));
}

TEST_F(Sending, OnlyAnObjectWithATextualIdNamesARecord) {
    EXPECT_EQ(sendTo(server.endpoint("https", {.body = " {\"x\":[1],\"id\":\"ä\\u00df 1\"}\n"})).id,
              u"äß 1");
    for (const char* body : {R"({"id":7})", R"({"id":null})", R"({"ID":"r1"})", "{}", R"(["id"])",
                             R"("id")", "null", R"([{"id":"r1"}])"}) {
        const Outcome result = sendTo(server.endpoint("https", {.body = body}));
        EXPECT_EQ(result.error, FeedbackError::Case(InvalidResponse{})) << body;
        EXPECT_EQ(result.text, u"Ungültige Antwort vom Feedback-Server");
    }
}

TEST_F(Sending, AConnectionThatDropsIsAnErrorAndTheRecordIsNotSentAgain) {
    EXPECT_EQ(sendTo(server.endpoint("https", {.missing = 3})).transport,
              QNetworkReply::RemoteHostClosedError);
    for (const char* port : {"http", "https"}) {
        const Outcome result = sendTo(server.endpointWithoutAnswer(port, "drop"));
        EXPECT_TRUE(result.transport) << port;
        EXPECT_EQ(result.text, u"Connection closed");
    }
}

TEST_F(Sending, TheTimeLimitEndsEveryKindOfSilence) {
    constexpr std::chrono::milliseconds shortTime(150);
    for (const QString& endpoint :
         {server.endpointWithoutAnswer("https", "silent"), server.endpoint("mute")}) {
        const Outcome result = outcome(service(endpoint, shortTime).send(payload));
        EXPECT_EQ(result.transport, QNetworkReply::OperationCanceledError);
        EXPECT_EQ(result.text, u"Socket operation timed out");
    }
}

TEST_F(Sending, ACertificateThatDoesNotHoldEndsTheConnectionBeforeAnythingIsSent) {
    EXPECT_EQ(sendTo(server.endpoint("https")).id, u"r1");
    const Outcome otherName = outcome(service(server.endpoint("otherName")).send(payload));
    const Outcome unknownAuthority =
        outcome(FeedbackService(server.endpoint("https")).send(payload));
    for (const Outcome& result : {otherName, unknownAuthority}) {
        EXPECT_EQ(result.transport, QNetworkReply::SslHandshakeFailedError);
        EXPECT_THAT(result.text.toStdString(), testing::HasSubstr("certificate"));
    }
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(Sending, AnEndpointThatIsNoUrlOrNoServerFailsByItself) {
    for (const QString& endpoint :
         {QString(), QStringLiteral("https://exa mple/"), QStringLiteral("https://[::1/"),
          QStringLiteral("http://h:x/")}) {
        const Outcome result = outcome(service(endpoint).send(payload));
        EXPECT_EQ(result.error, FeedbackError::Case(InvalidUrl{})) << endpoint.toStdString();
        EXPECT_EQ(result.text, u"Ungültige Feedback-URL");
    }
    EXPECT_EQ(outcome(service(QStringLiteral("file:///etc/hostname")).send(payload)).error,
              FeedbackError::Case(InvalidResponse{}));
    for (const QString& endpoint : {QStringLiteral("feedback"), QStringLiteral("gopher://host/"),
                                    QStringLiteral("https:///records")}) {
        const Outcome result = outcome(service(endpoint).send(payload));
        EXPECT_TRUE(result.transport) << endpoint.toStdString();
        EXPECT_FALSE(result.text.isEmpty());
    }
}

} // namespace feedback
