#pragma once

#include <QString>

namespace platform {

/// Where an application's icon comes from: a name in the icon theme, or the path of a picture or of
/// the bundle itself. Unlike a picture it may be made on any thread.
struct IconReference {
    QString nameOrPath;

    bool operator==(const IconReference&) const = default;
};

} // namespace platform
