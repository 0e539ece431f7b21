#pragma once

#include <QNetworkReply>

#include <stdexcept>

namespace feedback {

/// The HTTP client's own error: the request did not reach the server, or its answer not us.
class TransportError final : public std::runtime_error {
public:
    /// Of a finished reply that failed.
    explicit TransportError(const QNetworkReply& reply);

    QNetworkReply::NetworkError code() const { return code_; }

private:
    QNetworkReply::NetworkError code_;
};

} // namespace feedback
