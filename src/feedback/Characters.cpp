#include "feedback/Characters.h"

#include <unicode/ubrk.h>

#include <algorithm>
#include <limits>

namespace feedback {

QStringView firstCharacters(QStringView text, int count) {
    constexpr qsizetype longest = std::numeric_limits<int32_t>::max();
    const auto length = static_cast<int32_t>(std::min(text.size(), longest));
    UErrorCode status = U_ZERO_ERROR;
    // Where characters end does not depend on the language.
    const icu::LocalUBreakIteratorPointer characters(
        ubrk_open(UBRK_CHARACTER, "", text.utf16(), length, &status));
    if (U_FAILURE(status)) {
        return text.first(std::min<qsizetype>(text.size(), count));
    }
    for (int counted = 0; counted < count; ++counted) {
        if (ubrk_next(characters.getAlias()) == UBRK_DONE) {
            return text;
        }
    }
    return text.first(ubrk_current(characters.getAlias()));
}

} // namespace feedback
