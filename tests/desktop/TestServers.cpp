// The servers of the program under test: what the shipped executable has compiled in comes from the
// environment here, together with the authority that signed the servers' certificates.
#include "feedback/FeedbackDefaults.h"
#include "feedback/TrustingSession.h"

#include <QCoreApplication>
#include <QFile>

#include <memory>

namespace feedback {

QString defaultEndpoint() {
    return qEnvironmentVariable("QUILLET_TEST_FEEDBACK_ENDPOINT");
}

QNetworkAccessManager& sharedSession() {
    static std::unique_ptr<TrustingSession> session;
    if (!session) {
        session = std::make_unique<TrustingSession>([] {
            QFile file(qEnvironmentVariable("QUILLET_TEST_AUTHORITY"));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        });
        qAddPostRoutine([] { session.reset(); });
    }
    return *session;
}

} // namespace feedback
