// What the server receives.
#include "feedback/Sending.h"

#include <QRegularExpression>

namespace feedback {

namespace {

QByteArray bytes(const QJsonValue& base64) {
    return QByteArray::fromBase64(base64.toString().toLatin1());
}

QString header(const QJsonObject& request, const char* name) {
    return request[u"headers"][QLatin1String(name)].toString();
}

} // namespace

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
