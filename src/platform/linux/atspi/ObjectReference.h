#pragma once

#include <QDBusArgument>
#include <QMetaType>
#include <QString>

namespace platform {

/// An accessible object as it stands on the wire: its owner's bus name and its object path.
struct ObjectReference {
    QString service;
    QString path;

    bool operator==(const ObjectReference&) const = default;

    /// Applications answer with a reference to nothing where there is no object.
    bool isNull() const {
        return service.isEmpty() || path.isEmpty() ||
               path == QLatin1StringView("/org/a11y/atspi/null");
    }

    static ObjectReference root(const QString& service) {
        return {service, QStringLiteral("/org/a11y/atspi/accessible/root")};
    }
};

QDBusArgument& operator<<(QDBusArgument& argument, const ObjectReference& reference);
const QDBusArgument& operator>>(const QDBusArgument& argument, ObjectReference& reference);

} // namespace platform

Q_DECLARE_METATYPE(platform::ObjectReference)
