#pragma once

#include "platform/UserDefaults.h"

#include <cstdint>
#include <optional>

namespace settings {

// A stored value as the type that the program wants, where that keeps its value: 0 and 1 are
// booleans and the other way round, a whole number is a fraction, 2.0 is a whole number. A string
// is never a number, and nothing yields nothing.

using StoredValue = std::optional<platform::DefaultsValue>;

std::optional<bool> toBool(const StoredValue& value);
std::optional<double> toDouble(const StoredValue& value);
std::optional<std::int64_t> toSigned(const StoredValue& value);
std::optional<std::uint64_t> toUnsigned(const StoredValue& value);
std::optional<QStringList> toStringList(const StoredValue& value);

} // namespace settings
