#pragma once

#include <QIcon>

namespace platform {

/// What the desktop shows for the program's windows: the icon that is installed, which themes may
/// replace, else the program's own drawing.
QIcon programIcon();

} // namespace platform
