#pragma once

#include "platform/ApplicationBundles.h"

namespace platform {

/// Applications as bundles in the two Applications folders and the user's own.
class NSBundleApplicationBundles final : public ApplicationBundles {
public:
    QStringList folders() override;
    QStringList entries(const QString& folder) override;
    QString suffix() override;
    std::optional<ApplicationBundle> bundle(const QString& path) override;
    /// The bundle itself: the workspace knows its icon.
    std::optional<IconReference> iconForFile(const QString& path) override;
};

} // namespace platform
