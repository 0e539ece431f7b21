#include "fakes/HttpsServer.h"

#include <QJsonDocument>
#include <QSslConfiguration>
#include <QUrl>
#include <QUrlQuery>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace fakes {

namespace {
constexpr int patience = 20'000; // milliseconds until a silent server fails the test
}

HttpsServer::HttpsServer() {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QStringLiteral(PYTHON), {QStringLiteral(HTTPS_SERVER), folder_.path()});
    ports_ = readLine();
    auto trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificates(folder_.filePath(u"authority.pem"_s));
    QSslConfiguration::setDefaultConfiguration(trusting);
}

HttpsServer::~HttpsServer() {
    process_.closeWriteChannel();
    if (!process_.waitForFinished(patience)) {
        process_.kill();
        process_.waitForFinished(patience);
        ADD_FAILURE() << "the server did not end with its input";
    }
}

QString HttpsServer::address(const char* port, const Wish& wish) const {
    QUrlQuery query;
    query.addQueryItem(u"status"_s, QString::number(wish.status));
    query.addQueryItem(u"body"_s,
                       QString::fromLatin1(wish.body.toBase64(QByteArray::Base64UrlEncoding)));
    query.addQueryItem(u"missing"_s, QString::number(wish.missing));
    query.addQueryItem(u"header"_s, QString::fromLatin1(QUrl::toPercentEncoding(wish.header)));
    query.addQueryItem(u"end"_s, wish.end);
    const QLatin1String name(port);
    return u"%1://127.0.0.1:%2/api/collections/feedback/records?%3"_s.arg(
        name == QLatin1String("http") ? u"http"_s : u"https"_s,
        QString::number(ports_[name].toInt()), query.toString(QUrl::FullyEncoded));
}

QJsonObject HttpsServer::traffic() {
    process_.write("\n");
    return readLine();
}

QJsonObject HttpsServer::readLine() {
    while (!process_.canReadLine()) {
        if (!process_.waitForReadyRead(patience)) {
            ADD_FAILURE() << "the server says nothing: " << qPrintable(process_.errorString());
            return {};
        }
    }
    return QJsonDocument::fromJson(process_.readLine()).object();
}

} // namespace fakes
