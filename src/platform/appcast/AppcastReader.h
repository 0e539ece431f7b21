#pragma once

#include "platform/appcast/AppcastItem.h"

#include <QByteArray>
#include <QStringList>

#include <variant>
#include <vector>

namespace platform {

struct AppcastError {
    /// One line of English, for the user.
    QString reason;
};

/// For whom a feed is read.
struct AppcastAudience {
    /// As enclosures name it ("linux").
    QString system;
    /// In the user's order ("de", "en").
    QStringList languages;
};

/// The releases of an appcast in the feed's order, without those that are for other systems only or
/// have no version. A feed comes from outside: document types are refused, and size, depth and the
/// length of each text are limited.
std::variant<std::vector<AppcastItem>, AppcastError> readAppcast(const QByteArray& feed,
                                                                 const AppcastAudience& audience);

} // namespace platform
