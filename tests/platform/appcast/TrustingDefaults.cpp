// In place of the program's own defaults: the feed and one more authority, from the environment.
#include "platform/appcast/AppcastDefaults.h"

#include <QSslConfiguration>

namespace platform {

QString appcastAddress() {
    return qEnvironmentVariable("QUILLET_TEST_FEED");
}

std::unique_ptr<QNetworkAccessManager> makeAppcastSession() {
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificates(qEnvironmentVariable("QUILLET_TEST_AUTHORITY"));
    QSslConfiguration::setDefaultConfiguration(trusting);
    return std::make_unique<QNetworkAccessManager>();
}

} // namespace platform
