#pragma once

#include <QString>

namespace core {

/// A number with so many digits after a point, whatever the locale: exact, with ties to the even
/// digit, as C's printf writes it in its own locale.
QString decimalText(double value, int digits);

} // namespace core
