#pragma once

#include "platform/IconReference.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace platform {

/// What an installed application says of itself.
struct ApplicationBundle {
    std::optional<QString> bundleIdentifier;
    /// "CFBundleName" and "CFBundleDisplayName", where they are strings.
    std::optional<QString> name;
    std::optional<QString> displayName;
};

/// The installed applications. Any thread.
class ApplicationBundles {
public:
    virtual ~ApplicationBundles() = default;

    /// The folders in which applications are installed, in the order in which they count.
    virtual QStringList folders() = 0;

    /// The names in a folder, one level, in the order of the listing; empty when it cannot be read.
    virtual QStringList entries(const QString& folder) = 0;

    /// How the name of a bundle ends, such as ".app".
    virtual QString suffix() = 0;

    /// Empty when there is no bundle at that path.
    virtual std::optional<ApplicationBundle> bundle(const QString& path) = 0;

    virtual std::optional<IconReference> iconForFile(const QString& path) = 0;
};

} // namespace platform
