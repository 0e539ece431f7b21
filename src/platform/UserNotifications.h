#pragma once

#include "core/Registration.h"

#include <QString>

#include <functional>

namespace platform {

struct UserNotification {
    QString summary;
    QString body;
    /// Of the button beside which the whole notification acts, where the desktop shows buttons.
    QString action;
};

/// Tells the user something without a window and without the keyboard.
class UserNotifications {
public:
    virtual ~UserNotifications() = default;

    /// Shows a notification as long as the registration lives, or until the user closes it; calls
    /// `activated` when the user asks for more.
    virtual core::Registration show(const UserNotification& notification,
                                    std::function<void()> activated) = 0;
};

} // namespace platform
