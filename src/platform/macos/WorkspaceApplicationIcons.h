#pragma once

#include "platform/ApplicationIcons.h"

#include <QCache>

namespace platform {

/// Applications' pictures as the workspace shows them. The ones used last are kept.
class WorkspaceApplicationIcons final : public ApplicationIcons {
public:
    QImage picture(const IconReference& icon, int side, double devicePixelRatio) override;

private:
    static constexpr int keptBytes = 4 * 1024 * 1024;

    QCache<QString, QImage> kept_{keptBytes};
};

} // namespace platform
