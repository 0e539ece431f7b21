#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>

#include <functional>

namespace feedback {

/// An HTTP session that trusts one more authority than the system does.
class TrustingSession final : public QNetworkAccessManager {
public:
    /// `authority` gives its certificate as PEM, at each request.
    explicit TrustingSession(std::function<QByteArray()> authority)
        : authority_(std::move(authority)) {}

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* body) override;

private:
    std::function<QByteArray()> authority_;
};

} // namespace feedback
