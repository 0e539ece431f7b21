#pragma once

#include "platform/linux/x11/XcbConnection.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

/// The server's time of the user's deed that a startup id stands for; empty when the id does not
/// say.
std::optional<xcb_timestamp_t> startupTime(const QString& startupId);

/// The message by which the desktop learns that a start has come to its end, without the byte that
/// ends it.
QByteArray startupCompletedMessage(const QString& startupId);

/// Tells the desktop that what the user started is there, so that it no longer shows a busy
/// pointer. `window` is any window of the program.
void sendStartupCompleted(XcbConnection& connection, xcb_window_t window, const QString& startupId);

} // namespace platform
