#pragma once

#include <QStringView>

namespace core {

/// Writes "Quillet: " and `message` as one line on standard output, at once. Never pass text that
/// the user selected or typed.
void log(QStringView message);

/// Writes `line` on standard output as it stands.
void logLine(QStringView line);

} // namespace core
