#pragma once

#include <QString>

class QNetworkAccessManager;

namespace feedback {

/// The URL of the records collection that this build sends feedback to.
QString defaultEndpoint();

/// The HTTP session that everything sent from the calling thread shares. It is made on first use
/// and lives as long as the thread, on the main thread as long as the application object.
QNetworkAccessManager& sharedSession();

} // namespace feedback
