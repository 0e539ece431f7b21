#pragma once

#include <QString>

#include <exception>

namespace feedback {

/// What the user reads of an error that sending feedback threw, whichever library it comes from;
/// never longer than a status line can show.
QString localizedDescription(const std::exception& error);

} // namespace feedback
