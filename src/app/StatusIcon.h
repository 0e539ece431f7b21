#pragma once

#include <QIcon>
#include <QString>

namespace platform {
class Symbols;
}

namespace app {

/// A symbol as the icon of a status item: a mask in the text colour of the moment, rendered when
/// somebody asks for its pixels. `symbols` must outlive every copy.
QIcon statusIcon(platform::Symbols& symbols, const QString& symbolName);

} // namespace app
