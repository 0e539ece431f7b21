#include "feedback/ErrorText.h"

#include "feedback/Characters.h"
#include "feedback/FeedbackError.h"

#include <nlohmann/json.hpp>

namespace feedback {

QString localizedDescription(const std::exception& error) {
    if (const auto* own = dynamic_cast<const FeedbackError*>(&error)) {
        return own->errorDescription();
    }
    QString text = QString::fromUtf8(error.what());
    if (dynamic_cast<const nlohmann::json::exception*>(&error) != nullptr) {
        // "[json.exception.parse_error.101] " is for programmers.
        text.remove(0, text.indexOf(u"] ") + 2);
    }
    // The parser quotes what it read last, which may be all of a large answer.
    constexpr int shownCharacters = 200;
    return firstCharacters(text, shownCharacters).toString();
}

} // namespace feedback
