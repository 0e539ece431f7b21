#include "core/Log.h"

#include <QString>

#include <cstdio>

namespace core {

void log(QStringView message) {
    logLine(QStringLiteral("Quillet: ") + message.toString());
}

void logLine(QStringView line) {
    // One call writes the whole line, so that lines of several threads never mix.
    const QByteArray bytes = (line.toString() + QLatin1Char('\n')).toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace core
