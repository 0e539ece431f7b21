#pragma once

#include <QStringView>

namespace feedback {

/// The first characters of a text as a reader counts them: a letter with its accents, a flag or a
/// family of emoji is one. A shorter text comes back whole.
QStringView firstCharacters(QStringView text, int count);

} // namespace feedback
