#pragma once

#include "platform/linux/freedesktop/DesktopEntryTable.h"

#include <QStringList>

namespace platform {

/// The entry of the desktop's own accessibility settings; null when this desktop has none.
const DesktopEntry* accessibilitySettings(const DesktopEntryTable& table,
                                          const QStringList& desktops);

/// Starts an application detached from this program. Answers whether it was started.
bool startDetached(const DesktopEntry& application);

} // namespace platform
