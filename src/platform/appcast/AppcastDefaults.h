#pragma once

#include <QNetworkAccessManager>
#include <QString>

#include <memory>

namespace platform {

/// Where this build looks for newer versions; empty when it does not look.
QString appcastAddress();

/// The HTTP session for one look.
std::unique_ptr<QNetworkAccessManager> makeAppcastSession();

} // namespace platform
