#include "settings/DefaultsConversion.h"

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

namespace settings {

namespace {

/// The whole number that a fraction is, if it is one in the range of `Whole`.
template <typename Whole>
std::optional<Whole> wholeNumber(double value) {
    constexpr int bits = std::numeric_limits<Whole>::digits;
    const double end = std::ldexp(1.0, bits); // one beyond the largest
    const double start = std::is_signed_v<Whole> ? -end : 0.0;
    if (!(value >= start && value < end) || std::trunc(value) != value) {
        return std::nullopt;
    }
    return static_cast<Whole>(value);
}

template <typename Whole>
std::optional<Whole> toWhole(const StoredValue& value) {
    if (!value) {
        return std::nullopt;
    }
    return std::visit(
        [](const auto& stored) -> std::optional<Whole> {
            using Stored = std::decay_t<decltype(stored)>;
            if constexpr (std::is_same_v<Stored, bool>) {
                return stored ? 1 : 0;
            } else if constexpr (std::is_same_v<Stored, double>) {
                return wholeNumber<Whole>(stored);
            } else if constexpr (std::is_integral_v<Stored>) {
                return std::in_range<Whole>(stored) ? std::optional(static_cast<Whole>(stored))
                                                    : std::nullopt;
            } else {
                return std::nullopt;
            }
        },
        *value);
}

/// A whole number as a fraction, unless digits would be lost.
template <typename Whole>
std::optional<double> exactDouble(Whole whole) {
    const auto fraction = static_cast<double>(whole);
    return wholeNumber<Whole>(fraction) == whole ? std::optional(fraction) : std::nullopt;
}

} // namespace

std::optional<bool> toBool(const StoredValue& value) {
    const auto whole = toWhole<std::int64_t>(value);
    return whole == 0 || whole == 1 ? std::optional(whole == 1) : std::nullopt;
}

std::optional<double> toDouble(const StoredValue& value) {
    if (const auto* fraction = value ? std::get_if<double>(&*value) : nullptr) {
        return *fraction;
    }
    if (const auto whole = toSigned(value)) {
        return exactDouble(*whole);
    }
    if (const auto whole = toUnsigned(value)) {
        return exactDouble(*whole);
    }
    return std::nullopt;
}

std::optional<std::int64_t> toSigned(const StoredValue& value) {
    return toWhole<std::int64_t>(value);
}

std::optional<std::uint64_t> toUnsigned(const StoredValue& value) {
    return toWhole<std::uint64_t>(value);
}

std::optional<QStringList> toStringList(const StoredValue& value) {
    const auto* list = value ? std::get_if<QStringList>(&*value) : nullptr;
    return list != nullptr ? std::optional(*list) : std::nullopt;
}

} // namespace settings
