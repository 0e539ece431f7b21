#include "feedback/TrustingSession.h"

#include <QSslCertificate>
#include <QSslConfiguration>

namespace feedback {

QNetworkReply* TrustingSession::createRequest(Operation operation, const QNetworkRequest& request,
                                              QIODevice* body) {
    QNetworkRequest trusting(request);
    QSslConfiguration configuration = request.sslConfiguration();
    configuration.addCaCertificates(QSslCertificate::fromData(authority_()));
    trusting.setSslConfiguration(configuration);
    return QNetworkAccessManager::createRequest(operation, trusting, body);
}

} // namespace feedback
