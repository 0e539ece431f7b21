#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace fakes {

/// A web server in a process of its own, on the loopback address. Its authority is trusted by this
/// process from then on.
class HttpsServer {
public:
    /// What a test wants it to answer.
    struct Wish {
        int status = 200;
        QByteArray body = {};
        /// Such as "Location:/elsewhere".
        QString header = {};
        /// How many bytes of the body never come.
        int missing = 0;
        /// How it misbehaves instead of answering.
        QString end = {};
    };

    HttpsServer();
    ~HttpsServer();

    /// Which of its ports: "http", "https", "other" (a certificate for another host), "stranger"
    /// (one of an unknown authority), or "mute" (accepts connections and nothing else).
    QString address(const char* port, const Wish& wish) const;
    QString address(const char* port) const { return address(port, Wish{}); }

    /// The requests since the last question, as the server read them.
    QJsonArray requests() { return traffic()[QStringLiteral("requests")].toArray(); }
    /// How many bytes of answers went out so far.
    double sent() { return traffic()[QStringLiteral("sent")].toDouble(); }

private:
    QJsonObject traffic();
    QJsonObject readLine();

    QTemporaryDir folder_;
    QProcess process_;
    QJsonObject ports_;
};

} // namespace fakes
