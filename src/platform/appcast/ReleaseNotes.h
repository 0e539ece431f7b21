#pragma once

#include "platform/appcast/AppcastItem.h"

namespace platform {

/// Release notes from outside as plain text: no markup, nothing that reorders or hides characters,
/// and not endlessly long. Takes time in proportion to their length, whatever is nested in them.
QString releaseNotesText(const QString& notes, NotesFormat format);

} // namespace platform
