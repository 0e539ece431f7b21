#include "core/DecimalText.h"

#include "core/Fatal.h"

#include <array>
#include <charconv>
#include <limits>

namespace core {

QString decimalText(double value, int digits) {
    constexpr int mostDigits = 20;
    if (digits < 0 || digits > mostDigits) {
        fatal(u"a number can be written with 0 to 20 digits after the point");
    }
    // The largest double, a sign, the point and the digits after it.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 3 + mostDigits> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                            std::chars_format::fixed, digits);
    if (error != std::errc()) {
        fatal(u"a number did not fit its text");
    }
    return QString::fromLatin1(text.data(), end - text.data());
}

} // namespace core
