#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

namespace core {

/// Looks for one text in others, ignoring case by the rules of a language. Only whole characters
/// match, as a reader counts them: "e" is not in "é". An empty text is in none.
class LocalizedSearch {
public:
    explicit LocalizedSearch(QStringView searched, const QLocale& locale = QLocale());

    bool isIn(QStringView text) const;

private:
    QString folded(QStringView text) const;

    QLocale locale_;
    /// Whether the language has rules of its own for the letters of ASCII, as Turkish has.
    bool hasOwnRules_;
    QString part_;
};

/// The same for a single text.
bool localizedCaseInsensitiveContains(QStringView text, QStringView searched,
                                      const QLocale& locale = QLocale());

} // namespace core
