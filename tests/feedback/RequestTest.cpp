// What the server receives.
#include "feedback/Sending.h"

#include <QRegularExpression>
#include <QSet>

namespace feedback {

namespace {

QByteArray bytes(const QJsonValue& base64) {
    return QByteArray::fromBase64(base64.toString().toLatin1());
}

QString header(const QJsonObject& request, const char* name) {
    return request[u"headers"][QLatin1String(name)].toString();
}

/// Everything that a picture may hold and a boundary or a line must not take for its own.
QByteArray awkwardPicture() {
    QByteArray picture("\x89PNG\r\n\x1a\n\r\n--\r\n----CQFeedback-\r\n\r\r\n\n");
    for (int byte = 0; byte < 256; ++byte) {
        picture.append(static_cast<char>(byte));
    }
    return picture.repeated(4000); // more than the client and the socket buffer at once
}

} // namespace

TEST_F(Sending, WithoutPictureTheRecordIsJson) {
    payload.text = QStringLiteral("  \"Grüße\"\r\n\t\\ 👩‍👩‍👧 \u0001\n ");
    payload.appModule = QStringLiteral("Corvane Quillet – Hauptfenster");
    payload.userName.clear();
    const QJsonObject request = requestFor(payload);
    EXPECT_EQ(request[u"path"].toString(), u"/api/collections/feedback/records");
    EXPECT_EQ(header(request, "content-type"), u"application/json");
    const QJsonObject expected{
        {QStringLiteral("text"), payload.text},
        {QStringLiteral("user_name"), QString()},
        {QStringLiteral("app_version"), payload.appVersion},
        {QStringLiteral("os_version"), payload.osVersion},
        {QStringLiteral("app_module"), payload.appModule},
        {QStringLiteral("diagnose"), payload.diagnose},
    };
    EXPECT_EQ(request[u"json"].toObject(), expected);
    const auto names = request[u"headers"].toObject().keys();
    const QSet<QString> ofTheClient{
        QStringLiteral("host"),           QStringLiteral("content-type"),
        QStringLiteral("connection"),     QStringLiteral("content-length"),
        QStringLiteral("user-agent"),     QStringLiteral("accept-encoding"),
        QStringLiteral("accept-language")};
    EXPECT_TRUE(QSet<QString>(names.begin(), names.end()).subtract(ofTheClient).isEmpty());
}

TEST_F(Sending, WithPictureTheRecordIsMultipartByteForByte) {
    payload.text = QStringLiteral("Grüße\r\n--\n\"x\"");
    payload.screenshotPNG = QByteArray("\x89PNG\r\n\0--", 9);
    const QJsonObject request = requestFor(payload);
    const QString type = header(request, "content-type");
    static const QRegularExpression pattern(
        QStringLiteral("^multipart/form-data; boundary=(----CQFeedback-"
                       "[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12})$"));
    const auto match = pattern.match(type);
    ASSERT_TRUE(match.hasMatch()) << type.toStdString();
    QByteArray expected;
    for (const auto& [name, text] : {std::pair("text", payload.text),
                                     {"user_name", payload.userName},
                                     {"app_version", payload.appVersion},
                                     {"os_version", payload.osVersion},
                                     {"app_module", payload.appModule},
                                     {"diagnose", payload.diagnose}}) {
        expected += QByteArray("--B\r\nContent-Disposition: form-data; name=\"") + name +
                    "\"\r\n\r\n" + text.toUtf8() + "\r\n";
    }
    expected += "--B\r\nContent-Disposition: form-data; name=\"screenshot\"; "
                "filename=\"feedback.png\"\r\nContent-Type: image/png\r\n\r\n" +
                *payload.screenshotPNG + "\r\n--B--\r\n";
    expected.replace("--B", "--" + match.captured(1).toLatin1());
    EXPECT_EQ(bytes(request[u"body"]), expected);
    EXPECT_NE(header(requestFor(payload), "content-type"), type);
}

TEST_F(Sending, AStrictReaderFindsTheTextsAndThePicture) {
    payload.text = QStringLiteral("\r\n\n ä 🏳️‍🌈\r");
    for (const QByteArray& picture : {awkwardPicture(), QByteArray()}) {
        payload.screenshotPNG = picture;
        const QJsonObject request = requestFor(payload);
        ASSERT_FALSE(request.contains(u"malformed"))
            << request[u"malformed"].toString().toStdString();
        const QJsonArray parts = request[u"parts"].toArray();
        ASSERT_EQ(parts.size(), 7);
        EXPECT_EQ(bytes(parts[0][u"data"]), payload.text.toUtf8());
        EXPECT_TRUE(bytes(parts[6][u"data"]) == picture);
    }
}

TEST_F(Sending, OneRecordTellsNothingOfAnother) {
    const Answer answer{.header = QStringLiteral("Set-Cookie:who=anna")};
    for (int turn = 0; turn < 2; ++turn) {
        outcome(service(server.endpoint("https", answer)).send(payload));
    }
    const QJsonArray requests = server.requests();
    ASSERT_EQ(requests.size(), 2);
    EXPECT_TRUE(requests[1][u"headers"][u"cookie"].isUndefined());
}

} // namespace feedback
