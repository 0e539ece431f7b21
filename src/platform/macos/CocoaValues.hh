#pragma once

#include "platform/Geometry.h"

#include <Foundation/Foundation.h>

#include <QString>

#include <optional>

namespace platform {

/// Between the toolkit's values and Foundation's. Only *.mm files see Objective-C types.
inline NSString* toNSString(const QString& text) {
    return [NSString stringWithCharacters:reinterpret_cast<const unichar*>(text.utf16())
                                   length:static_cast<NSUInteger>(text.size())];
}

inline QString toQString(NSString* text) {
    const NSUInteger length = text.length;
    QString copy(static_cast<qsizetype>(length), Qt::Uninitialized);
    [text getCharacters:reinterpret_cast<unichar*>(copy.data()) range:NSMakeRange(0, length)];
    return copy;
}

/// Empty also for an object of another kind.
inline std::optional<QString> stringOrNothing(id object) {
    if (object == nil || ![object isKindOfClass:[NSString class]]) {
        return std::nullopt;
    }
    return toQString(static_cast<NSString*>(object));
}

inline Rect toRect(NSRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

inline Point toPoint(NSPoint point) {
    return {point.x, point.y};
}

} // namespace platform
