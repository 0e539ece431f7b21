#pragma once

#include <QLocale>
#include <QStringView>

namespace core {

/// Whether `text` contains `searched`, ignoring case by the rules of `locale` and canonically
/// equivalent spellings. Only whole user-perceived characters match: é does not contain e.
/// An empty search matches nothing.
bool localizedCaseInsensitiveContains(QStringView text, QStringView searched,
                                      const QLocale& locale = QLocale());

} // namespace core
