#include "feedback/TransportError.h"

#include <QCoreApplication>

namespace feedback {

namespace {

/// The client's own words, except where they tell what it did instead of what happened.
QString description(const QNetworkReply& reply) {
    switch (reply.error()) {
    case QNetworkReply::OperationCanceledError: // by its own time limit: nobody else cancels
        return QCoreApplication::translate("QAbstractSocket", "Socket operation timed out");
    case QNetworkReply::ContentReSendError: // because the connection closed before an answer
        return QCoreApplication::translate("QHttp", "Connection closed");
    default:
        return reply.errorString();
    }
}

} // namespace

TransportError::TransportError(const QNetworkReply& reply)
    : std::runtime_error(description(reply).toStdString())
    , code_(reply.error()) {}

} // namespace feedback
