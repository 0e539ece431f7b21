// Nothing else stands in this file, so that a program can bring its own defaults: then the linker
// leaves these out.
#include "feedback/FeedbackDefaults.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QThread>
#include <QThreadStorage>

#include <memory>

namespace feedback {

QString defaultEndpoint() {
    return QStringLiteral(QUILLET_FEEDBACK_ENDPOINT);
}

namespace {
QThreadStorage<std::shared_ptr<QNetworkAccessManager>> sessions;
}

QNetworkAccessManager& sharedSession() {
    if (!sessions.hasLocalData()) {
        if (QThread::currentThread() == qApp->thread()) {
            // Closing its connections still asks for the application object.
            qAddPostRoutine([] { sessions.setLocalData(nullptr); });
        }
        sessions.setLocalData(std::make_shared<QNetworkAccessManager>());
    }
    return *sessions.localData();
}

} // namespace feedback
