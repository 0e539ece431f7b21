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

} // namespace

TEST_F(Sending, WithoutPictureTheRecordIsJson) {
    payload.text = QStringLiteral("  \"Grüße\"\r\n\t\\ 👩‍👩‍👧 \u0001\n ");
    payload.appModule = QStringLiteral("Corvane Quillet – Hauptfenster");
    payload.userName.clear();
    ASSERT_EQ(send(endpoint()).id, u"r1");
    const QJsonObject request = onlyRequest();
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
    ASSERT_EQ(send(endpoint()).id, u"r1");
    const QJsonObject request = onlyRequest();
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
    send(endpoint());
    EXPECT_NE(header(onlyRequest(), "content-type"), type);
}

} // namespace feedback
