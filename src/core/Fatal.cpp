#include "core/Fatal.h"

#include <QString>

#include <cstdio>
#include <cstdlib>

namespace core {

void fatal(QStringView message) {
    const QByteArray line = (QStringLiteral("Quillet: fatal: ") + message.toString()).toUtf8();
    std::fprintf(stderr, "%s\n", line.constData());
    std::fflush(stderr);
    std::abort();
}

} // namespace core
