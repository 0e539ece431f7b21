#pragma once

#include <QStringView>

namespace core {

/// Stops the process because the program itself is wrong or was given a value that it must not
/// go on with: one line on standard error, then an abort.
[[noreturn]] void fatal(QStringView message);

} // namespace core
