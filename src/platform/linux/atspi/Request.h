#pragma once

#include "platform/linux/atspi/ObjectReference.h"

#include <QDBusMessage>
#include <QVariantList>

namespace platform {

/// One question to an accessible object, not sent yet.
struct Request {
    ObjectReference object;
    QString interface;
    QString member;
    QVariantList arguments;

    QDBusMessage message() const;
};

/// The questions that this layer knows. The type of each answer stands behind it.
namespace requests {

Request role(const ObjectReference& object);                     // unsigned
Request states(const ObjectReference& object);                   // QList<unsigned>
Request interfaces(const ObjectReference& object);               // QStringList
Request children(const ObjectReference& object);                 // QList<ObjectReference>
Request childCount(const ObjectReference& object);               // int
Request parent(const ObjectReference& object);                   // ObjectReference
Request focusedDescendants(const ObjectReference& object);       // QList<ObjectReference>
Request selectionCount(const ObjectReference& object);           // int
Request selection(const ObjectReference& object, int index);     // int, int
Request text(const ObjectReference& object, int start, int end); // QString
/// Relative to the screen; five integers would be a wrong answer.
Request rangeExtents(const ObjectReference& object, int start, int end); // int, int, int, int
Request extents(const ObjectReference& object);                          // Extents
Request processOf(const QString& service);                               // unsigned

} // namespace requests

} // namespace platform
