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

/// What the coordinates of an answer are relative to.
enum class Coordinates : unsigned { Screen = 0, Window = 1 };

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
/// Rectangles of text are four integers, those of objects one structure.
Request rangeExtents(const ObjectReference& object, int start, int end, Coordinates relativeTo);
Request characterExtents(const ObjectReference& object, int offset, Coordinates relativeTo);
Request extents(const ObjectReference& object, Coordinates relativeTo); // Extents
Request processOf(const QString& service);                              // unsigned

} // namespace requests

} // namespace platform
