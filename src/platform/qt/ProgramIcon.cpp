#include "platform/qt/ProgramIcon.h"

#include "core/ProgramIdentity.h"

namespace platform {

QIcon programIcon() {
    return QIcon::fromTheme(core::programIdentifier(),
                            QIcon(QStringLiteral(":/icon/corvane-quillet.svg")));
}

} // namespace platform
