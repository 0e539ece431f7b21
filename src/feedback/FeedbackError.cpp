#include "feedback/FeedbackError.h"

#include "feedback/Characters.h"

#include <utility>

namespace feedback {

namespace {

struct Description {
    QString operator()(const FeedbackError::HttpError& error) const {
        constexpr int shownCharacters = 200;
        return QStringLiteral("HTTP %1: %2")
            .arg(QString::number(error.statusCode), firstCharacters(error.body, shownCharacters));
    }
    QString operator()(FeedbackError::InvalidUrl) const {
        return QStringLiteral("Ungültige Feedback-URL");
    }
    QString operator()(FeedbackError::InvalidResponse) const {
        return QStringLiteral("Ungültige Antwort vom Feedback-Server");
    }
};

} // namespace

FeedbackError::FeedbackError(Case what)
    : kind_(std::move(what))
    , description_(std::visit(Description{}, kind_))
    , utf8_(description_.toUtf8()) {}

} // namespace feedback
