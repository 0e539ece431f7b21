#include "feedback/FeedbackService.h"

#include "feedback/Diagnostics.h"
#include "feedback/FeedbackError.h"
#include "feedback/OnceReadBody.h"
#include "feedback/RecordBody.h"
#include "feedback/TransportError.h"
#include "platform/Platform.h"
#include "settings/AppSettingsManager.h"

#include <QCoroNetworkReply>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStringDecoder>

#include <nlohmann/json.hpp>

#include <memory>
#include <utility>

namespace feedback {

namespace {

/// A reply must not be deleted while it tells that it has finished.
struct DeleteLater {
    void operator()(QNetworkReply* reply) const { reply->deleteLater(); }
};
using OwnedReply = std::unique_ptr<QNetworkReply, DeleteLater>;

QNetworkRequest makeRequest(const QUrl& url, std::chrono::milliseconds timeout) {
    QNetworkRequest request(url);
    request.setTransferTimeout(static_cast<int>(timeout.count()));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    // The answer's time begins with the last of them.
    request.setAttribute(QNetworkRequest::EmitAllUploadProgressSignalsAttribute, true);
    // The body is in memory already.
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    // Two records have nothing to do with each other.
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    return request;
}

/// The client counts some statuses among its errors; to us they are answers.
bool failed(const QNetworkReply& reply, int statusCode) {
    switch (reply.error()) {
    case QNetworkReply::NoError:
        return false;
    case QNetworkReply::ContentAccessDenied:
    case QNetworkReply::ContentOperationNotPermittedError:
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::AuthenticationRequiredError:
    case QNetworkReply::ContentConflictError:
    case QNetworkReply::ContentGoneError:
    case QNetworkReply::UnknownContentError:
    case QNetworkReply::ProtocolInvalidOperationError:
    case QNetworkReply::InternalServerError:
    case QNetworkReply::OperationNotImplementedError:
    case QNetworkReply::ServiceUnavailableError:
    case QNetworkReply::UnknownServerError:
        return statusCode < 400;
    case QNetworkReply::ContentReSendError:
        // The client gets ready for a redirect of 307 and 308 before it asks whether to follow it.
        return statusCode < 300;
    default:
        return true;
    }
}

QString decoded(const QByteArray& body) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder.decode(body);
    return decoder.hasError() ? QString() : text;
}

QString recordIdentifier(QNetworkReply& reply, BoundedAnswer& answer) {
    if (answer.isTooLarge()) {
        throw FeedbackError(FeedbackError::InvalidResponse{});
    }
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const int statusCode = status.toInt();
    if (failed(reply, statusCode)) {
        throw TransportError(reply);
    }
    if (!status.isValid()) {
        throw FeedbackError(FeedbackError::InvalidResponse{});
    }
    const QByteArray body = answer.body();
    if (statusCode < 200 || statusCode > 299) {
        throw FeedbackError(FeedbackError::HttpError{statusCode, decoded(body)});
    }
    const auto record = nlohmann::json::parse(body.begin(), body.end());
    const auto id = record.is_object() ? record.find("id") : record.end();
    if (id == record.end() || !id->is_string()) {
        throw FeedbackError(FeedbackError::InvalidResponse{});
    }
    return QString::fromStdString(id->get_ref<const std::string&>());
}

} // namespace

FeedbackService::FeedbackService(QString endpoint, FeedbackConnection connection)
    : endpoint_(std::move(endpoint))
    , connection_(std::move(connection)) {}

QCoro::Task<QString> FeedbackService::send(Payload payload) const {
    const QUrl url(endpoint_, QUrl::StrictMode);
    if (!url.isValid()) {
        throw FeedbackError(FeedbackError::InvalidUrl{});
    }
    if (url.isLocalFile()) {
        throw FeedbackError(FeedbackError::InvalidResponse{});
    }
    QNetworkRequest request = makeRequest(url, connection_.timeout);
    QByteArray body;
    if (payload.screenshotPNG) {
        const QByteArray boundary = makeBoundary();
        request.setHeader(QNetworkRequest::ContentTypeHeader,
                          QByteArray("multipart/form-data; boundary=" + boundary));
        body = buildMultipart(payload, *payload.screenshotPNG, boundary);
    } else {
        request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArray("application/json"));
        body = buildJson(payload);
    }
    // Told the length, the client does not gather the body once more before it sends it.
    request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
    OnceReadBody once(std::move(body));
    const qsizetype size = once.bytesAvailable();
    const OwnedReply reply(connection_.session().post(request, &once));
    BoundedAnswer answer(*reply, size, connection_.answer);
    co_await reply.get();
    co_return recordIdentifier(*reply, answer);
}

QString FeedbackService::appVersion() {
    return feedback::appVersion(*platform::current().systemInfo);
}

QString FeedbackService::osVersion() {
    return feedback::osVersion(*platform::current().systemInfo);
}

QString FeedbackService::sammeleDiagnose() const {
    return diagnosticText(settings::AppSettingsManager::shared(), platform::current(),
                          QDateTime::currentDateTime(), QLocale());
}

} // namespace feedback
