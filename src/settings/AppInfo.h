#pragma once

#include "platform/IconReference.h"

#include <QHashFunctions>
#include <QString>
#include <QUuid>

#include <optional>

namespace settings {

/// An application that the user can choose. Two records are equal when their bundle identifiers
/// are; `id` tells the rows of a list apart.
struct AppInfo {
    QUuid id = QUuid::createUuid();
    QString name;
    QString bundleIdentifier;
    std::optional<platform::IconReference> icon;

    bool operator==(const AppInfo& other) const {
        return bundleIdentifier == other.bundleIdentifier;
    }
};

inline size_t qHash(const AppInfo& app, size_t seed = 0) {
    return ::qHash(app.bundleIdentifier, seed);
}

} // namespace settings
