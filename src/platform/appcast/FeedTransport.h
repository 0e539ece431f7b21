#pragma once

#include "core/Registration.h"
#include "platform/appcast/AppcastReader.h"

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <variant>

namespace platform {

using FeedAnswer = std::variant<QByteArray, AppcastError>;

/// Gets a feed from where it is published. Main thread only.
class FeedTransport {
public:
    virtual ~FeedTransport() = default;

    /// Answers once, later, in a limited time, unless the registration is gone by then.
    virtual core::Registration fetch(const QUrl& address,
                                     std::function<void(FeedAnswer)> answered) = 0;
};

} // namespace platform
