#include "feedback/FeedbackServer.h"

#include <QFile>
#include <QJsonDocument>
#include <QUrl>
#include <QUrlQuery>
#include <gtest/gtest.h>

namespace feedback {

namespace {
constexpr int patience = 20'000; // milliseconds until a silent server fails the test
}

FeedbackServer::FeedbackServer() {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QStringLiteral(PYTHON), {QStringLiteral(FEEDBACK_SERVER), folder_.path()});
    ports_ = readLine().object();
}

FeedbackServer::~FeedbackServer() {
    process_.closeWriteChannel();
    if (!process_.waitForFinished(patience)) {
        process_.kill();
        process_.waitForFinished(patience);
        ADD_FAILURE() << "the server did not end with its input";
    }
}

QString FeedbackServer::endpoint(const char* port, const Answer& answer) const {
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("status"), QString::number(answer.status));
    query.addQueryItem(QStringLiteral("body"),
                       QString::fromLatin1(answer.body.toBase64(QByteArray::Base64UrlEncoding)));
    query.addQueryItem(QStringLiteral("missing"), QString::number(answer.missing));
    if (!answer.header.isEmpty()) {
        query.addQueryItem(QStringLiteral("header"), answer.header);
    }
    return endpoint(port, query.toString(QUrl::FullyEncoded));
}

QString FeedbackServer::endpointWithoutAnswer(const char* port, const char* end) const {
    return endpoint(port, QStringLiteral("end=") + QLatin1String(end));
}

QString FeedbackServer::endpoint(const char* port, const QString& query) const {
    const QLatin1String name(port);
    return QStringLiteral("%1://127.0.0.1:%2/api/collections/feedback/records?%3")
        .arg(name == QLatin1String("http") ? QStringLiteral("http") : QStringLiteral("https"),
             QString::number(ports_[name].toInt()), query);
}

QJsonArray FeedbackServer::requests() {
    process_.write("\n");
    return readLine().array();
}

QByteArray FeedbackServer::authority() const {
    QFile file(folder_.filePath(QStringLiteral("authority.pem")));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QJsonDocument FeedbackServer::readLine() {
    while (!process_.canReadLine()) {
        if (!process_.waitForReadyRead(patience)) {
            ADD_FAILURE() << "the server says nothing: " << qPrintable(process_.errorString());
            return {};
        }
    }
    return QJsonDocument::fromJson(process_.readLine());
}

} // namespace feedback
