#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

namespace platform {

/// A file in the format of desktop entries: groups of keys, some of them in several languages.
/// Lines that are none, or are not UTF-8, are skipped; of a key that stands twice the first counts.
class KeyFile {
public:
    static KeyFile parse(const QByteArray& contents);

    /// Empty when it is no regular file, cannot be read, or is far too long to be one of these.
    static std::optional<KeyFile> read(const QString& path);

    bool hasGroup(const QString& group) const { return groups_.contains(group); }

    /// As it stands, escapes and all.
    std::optional<QString> raw(const QString& group, const QString& key) const;

    /// With its escapes resolved.
    std::optional<QString> string(const QString& group, const QString& key) const;

    /// In the first of these languages that the file knows, else without a language.
    std::optional<QString> localizedString(const QString& group, const QString& key,
                                           const QStringList& languages) const;

    /// Only "true" and "false" are booleans.
    std::optional<bool> boolean(const QString& group, const QString& key) const;

    /// The parts between semicolons.
    QStringList list(const QString& group, const QString& key) const;

private:
    std::map<QString, std::map<QString, QString>> groups_;
};

/// The suffixes of localised keys that serve a locale such as "de_AT.UTF-8@euro", best first.
QStringList localeSuffixes(const QString& locale);

/// The locale of the process's messages, as the environment names it; empty for none.
QString messagesLocale();

} // namespace platform
