#include "platform/linux/atspi/ObjectReference.h"

#include <QDBusObjectPath>

namespace platform {

QDBusArgument& operator<<(QDBusArgument& argument, const ObjectReference& reference) {
    argument.beginStructure();
    // A path must not be empty on the wire.
    const auto path = reference.path.isEmpty() ? QStringLiteral("/") : reference.path;
    argument << reference.service << QDBusObjectPath(path);
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ObjectReference& reference) {
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> reference.service >> path;
    argument.endStructure();
    reference.path = path.path();
    return argument;
}

} // namespace platform
