#include "core/LocalizedSearch.h"

#include <QString>
#include <QTextBoundaryFinder>

namespace core {

namespace {

QString folded(QStringView text, const QLocale& locale) {
    // The locale's own lower case tells the Turkish letters apart; case folding then unites what
    // has several lower-case forms, such as the two sigmas.
    return locale.toLower(text.toString().normalized(QString::NormalizationForm_C))
        .toCaseFolded()
        .normalized(QString::NormalizationForm_C);
}

} // namespace

bool localizedCaseInsensitiveContains(QStringView text, QStringView searched,
                                      const QLocale& locale) {
    const QString within = folded(text, locale);
    const QString part = folded(searched, locale);
    if (part.isEmpty()) {
        return false;
    }
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, within);
    const auto isBoundary = [&characters](qsizetype position) {
        characters.setPosition(position);
        return characters.isAtBoundary();
    };
    for (qsizetype at = within.indexOf(part); at >= 0; at = within.indexOf(part, at + 1)) {
        if (isBoundary(at) && isBoundary(at + part.size())) {
            return true;
        }
    }
    return false;
}

} // namespace core
