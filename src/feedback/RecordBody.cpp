#include "feedback/RecordBody.h"

#include <QUuid>

#include <nlohmann/json.hpp>

#include <array>

namespace feedback {

namespace {

struct Field {
    const char* name;
    QString FeedbackService::Payload::*value;
};

using Payload = FeedbackService::Payload;
constexpr std::array fields{
    Field{"text", &Payload::text},
    Field{"user_name", &Payload::userName},
    Field{"app_version", &Payload::appVersion},
    Field{"os_version", &Payload::osVersion},
    Field{"app_module", &Payload::appModule},
    Field{"diagnose", &Payload::diagnose},
};

} // namespace

QByteArray buildJson(const Payload& payload) {
    nlohmann::json record = nlohmann::json::object();
    for (const auto& [name, value] : fields) {
        record[name] = (payload.*value).toStdString();
    }
    return QByteArray::fromStdString(record.dump());
}

QByteArray buildMultipart(const Payload& payload, const QByteArray& screenshot,
                          const QByteArray& boundary) {
    const QByteArray delimiter = "--" + boundary;
    QByteArray head;
    const auto addField = [&](const char* name, const QString& value) {
        head += delimiter + "\r\nContent-Disposition: form-data; name=\"" + name + "\"\r\n\r\n";
        head += value.toUtf8();
        head += "\r\n";
    };
    for (const auto& [name, value] : fields) {
        addField(name, payload.*value);
    }
    head += delimiter + "\r\nContent-Disposition: form-data; name=\"screenshot\"; "
                        "filename=\"feedback.png\"\r\nContent-Type: image/png\r\n\r\n";
    const QByteArray tail = "\r\n" + delimiter + "--\r\n";

    QByteArray body;
    body.reserve(head.size() + screenshot.size() + tail.size());
    body.append(head);
    body.append(screenshot);
    body.append(tail);
    return body;
}

QByteArray makeBoundary() {
    return "----CQFeedback-" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces).toUpper();
}

} // namespace feedback
