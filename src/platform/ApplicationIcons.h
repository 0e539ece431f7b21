#pragma once

#include "platform/IconReference.h"

#include <QImage>

namespace platform {

/// The pictures of applications. GUI thread only.
class ApplicationIcons {
public:
    virtual ~ApplicationIcons() = default;

    /// A square picture, `side` points wide, with its device pixel ratio set. Null when there is
    /// no such icon or it cannot be read.
    virtual QImage picture(const IconReference& icon, int side, double devicePixelRatio) = 0;
};

} // namespace platform
