#include "core/LocalizedSearch.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace core {

namespace {

constexpr char16_t firstCombining = 0x300;

bool isAscii(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// Whether a character ends and another begins at `position`.
bool isBoundary(const QString& text, qsizetype position) {
    if (position == 0 || position == text.size()) {
        return true;
    }
    const QChar before = text[position - 1];
    const QChar after = text[position];
    if (before.unicode() < firstCombining && after.unicode() < firstCombining) {
        return before != u'\r' || after != u'\n';
    }
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    characters.setPosition(position);
    return characters.isAtBoundary();
}

} // namespace

LocalizedSearch::LocalizedSearch(QStringView searched, const QLocale& locale)
    : locale_(locale)
    , hasOwnRules_(locale.toLower(QStringLiteral("I")) != u'i')
    , part_(folded(searched)) {}

bool LocalizedSearch::isIn(QStringView text) const {
    if (part_.isEmpty()) {
        return false;
    }
    if (!hasOwnRules_ && isAscii(text) && !text.contains(u'\r')) {
        return text.contains(part_, Qt::CaseInsensitive);
    }
    const QString within = folded(text);
    for (qsizetype at = within.indexOf(part_); at >= 0; at = within.indexOf(part_, at + 1)) {
        if (isBoundary(within, at) && isBoundary(within, at + part_.size())) {
            return true;
        }
    }
    return false;
}

QString LocalizedSearch::folded(QStringView text) const {
    // The language's own lower case tells the Turkish letters apart; case folding then unites what
    // has several lower-case forms, such as the two sigmas.
    const QString composed = text.toString().normalized(QString::NormalizationForm_C);
    return (hasOwnRules_ ? locale_.toLower(composed) : composed)
        .toCaseFolded()
        .normalized(QString::NormalizationForm_C);
}

bool localizedCaseInsensitiveContains(QStringView text, QStringView searched,
                                      const QLocale& locale) {
    return LocalizedSearch(searched, locale).isIn(text);
}

} // namespace core
