// The servers of the program under test: what the shipped executable has compiled in comes from the
// environment here, together with the authority that signed the servers' certificates.
#include "feedback/FeedbackDefaults.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QSslConfiguration>

#include <memory>

namespace {

std::unique_ptr<QNetworkAccessManager> trustingSession() {
    auto trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificates(qEnvironmentVariable("QUILLET_TEST_AUTHORITY"));
    QSslConfiguration::setDefaultConfiguration(trusting);
    return std::make_unique<QNetworkAccessManager>();
}

} // namespace

namespace feedback {

QString defaultEndpoint() {
    return qEnvironmentVariable("QUILLET_TEST_FEEDBACK_ENDPOINT");
}

QNetworkAccessManager& sharedSession() {
    static auto session = trustingSession();
    static const bool ends = (qAddPostRoutine([] { session.reset(); }), true);
    Q_UNUSED(ends);
    return *session;
}

} // namespace feedback
