#pragma once

#include "feedback/BoundedAnswer.h"
#include "feedback/FeedbackDefaults.h"

#include <QByteArray>
#include <QCoroTask>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

class QNetworkAccessManager;

namespace feedback {

/// How the service reaches its server.
struct FeedbackConnection {
    /// The HTTP session of the calling thread; it outlives what is sent through it.
    std::function<QNetworkAccessManager&()> session = sharedSession;
    /// How long a request may make no progress at all, connecting included.
    std::chrono::milliseconds timeout = std::chrono::seconds(60);
    BoundedAnswer::Limits answer = {};
};

/// Delivers one piece of the user's feedback to the feedback server and composes the texts that
/// go along. It is immutable, keeps nothing of what it sends, and may be used from any thread.
class FeedbackService {
public:
    /// The record as the server stores it.
    struct Payload {
        QString text;
        QString userName;
        QString appVersion;
        QString osVersion;
        QString appModule;
        QString diagnose;
        /// Absent: the record goes without a picture. Empty is a picture of no bytes.
        std::optional<QByteArray> screenshotPNG;
    };

    explicit FeedbackService(QString endpoint = defaultEndpoint(),
                             FeedbackConnection connection = {});

    const QString& endpoint() const { return endpoint_; }

    /// Sends the record, once, and answers the identifier that the server gave it. Throws a
    /// FeedbackError; a TransportError when the server could not be reached, its certificate does
    /// not hold or the time is up; the parser's error for an answer that is not JSON.
    /// localizedDescription() words each of them. The calling thread needs an event loop; the
    /// service itself may be gone before the answer comes.
    [[nodiscard]] QCoro::Task<QString> send(Payload payload) const;

    /// Such as "1.0.2 (1)"; what is not known is 0.
    static QString appVersion();

    /// "macOS " and three numbers, on every system: the server's records have it so.
    static QString osVersion();

    /// The report on permission and settings that goes with each record. Main thread only.
    QString sammeleDiagnose() const;

private:
    QString endpoint_;
    FeedbackConnection connection_;
};

} // namespace feedback
