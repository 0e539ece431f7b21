#pragma once

#include "platform/ApplicationIcons.h"

#include <QCache>
#include <QString>

namespace platform {

/// Applications' pictures from the desktop's icon theme and from picture files. Made when they are
/// first asked for, and the ones used last are kept. GUI thread only.
class ThemeApplicationIcons final : public ApplicationIcons {
public:
    QImage picture(const IconReference& icon, int side, double devicePixelRatio) override;

    /// How much of the pictures is kept, in bytes.
    static constexpr int keptBytes = 4 * 1024 * 1024;

private:
    bool themeChosen_ = false;
    /// Also what was looked for in vain is kept, as null.
    QCache<QString, QImage> kept_{keptBytes};
};

} // namespace platform
