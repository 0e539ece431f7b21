#pragma once

#include "platform/Symbols.h"

#include <QImage>
#include <QSize>
#include <QString>

namespace platform::nativeImages {

/// The system's symbol of that name, drawn in black with its coverage as alpha, `pixelsPerPoint`
/// times its own size. Null for an unknown name.
QImage symbol(const QString& name, const SymbolStyle& style, double pixelsPerPoint);

/// The icon that the workspace shows for a file. Null when there is no such file.
QImage iconOfFile(const QString& path, const QSize& pixels);

} // namespace platform::nativeImages
