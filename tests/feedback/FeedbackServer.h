#pragma once

#include "feedback/TrustingSession.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace feedback {

/// What a test wants the server to answer.
struct Answer {
    int status = 200;
    QByteArray body = R"({"id":"r1"})";
    /// Such as "Location:/elsewhere".
    QString header = {};
    /// How many bytes of the body never come.
    int missing = 0;
};

/// A feedback server in a process of its own, on the loopback address, with a certificate of an
/// authority that lives as long as the server.
class FeedbackServer {
public:
    FeedbackServer();
    ~FeedbackServer();

    /// Which of its ports: "http", "https", "otherName" (a certificate for another host), or
    /// "mute" (accepts connections and nothing else).
    QString endpoint(const char* port, const Answer& answer = {}) const;
    /// An endpoint that ends without an answer: "drop" or "silent".
    QString endpointWithoutAnswer(const char* port, const char* end) const;

    /// The requests that came since the last question, as the server read them.
    QJsonArray requests();

    QByteArray authority() const;

private:
    QJsonDocument readLine();
    QString endpoint(const char* port, const QString& query) const;

    QTemporaryDir folder_;
    QProcess process_;
    QJsonObject ports_;
};

} // namespace feedback
