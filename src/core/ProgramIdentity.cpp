#include "core/ProgramIdentity.h"

namespace core {

QString programIdentifier() {
    return QStringLiteral(QUILLET_IDENTIFIER);
}

QString programVersion() {
    return QStringLiteral(QUILLET_VERSION);
}

QString programBuildNumber() {
    return QStringLiteral(QUILLET_BUILD_NUMBER);
}

} // namespace core
