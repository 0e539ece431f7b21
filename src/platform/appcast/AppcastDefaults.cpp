// Nothing else stands in this file, so that a program can bring its own defaults: then the linker
// leaves these out.
#include "platform/appcast/AppcastDefaults.h"

namespace platform {

QString appcastAddress() {
    return QStringLiteral(QUILLET_APPCAST_URL);
}

std::unique_ptr<QNetworkAccessManager> makeAppcastSession() {
    return std::make_unique<QNetworkAccessManager>();
}

} // namespace platform
