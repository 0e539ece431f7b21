#pragma once

#include <QString>

namespace core {

/// "com.corvane.Quillet": what desktops, buses and bundles know the program by. The build settings
/// are where it and the version stand.
QString programIdentifier();

/// Such as "1.0.2".
QString programVersion();

/// Tells builds of the same version apart.
QString programBuildNumber();

} // namespace core
