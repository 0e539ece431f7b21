#include "platform/linux/freedesktop/KeyFile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace platform {

namespace {

constexpr qint64 longestFile = 1 << 20;

std::optional<QString> decoded(QByteArrayView line) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(line);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

/// Resolves \s, \n, \t, \r, \\ and \;. An unknown escape stands for itself.
QString unescaped(QStringView raw) {
    QString result;
    for (qsizetype index = 0; index < raw.size(); ++index) {
        if (raw[index] != u'\\' || index + 1 == raw.size()) {
            result.append(raw[index]);
            continue;
        }
        const QChar escape = raw[++index];
        switch (escape.unicode()) {
        case u's':
            result.append(u' ');
            break;
        case u'n':
            result.append(u'\n');
            break;
        case u't':
            result.append(u'\t');
            break;
        case u'r':
            result.append(u'\r');
            break;
        case u'\\':
        case u';':
            result.append(escape);
            break;
        default:
            result.append(u'\\').append(escape);
            break;
        }
    }
    return result;
}

} // namespace

KeyFile KeyFile::parse(const QByteArray& contents) {
    KeyFile file;
    std::map<QString, QString>* group = nullptr;
    for (const auto& bytes : contents.split('\n')) {
        const auto line = decoded(bytes);
        const QString text = line ? line->trimmed() : QString();
        if (text.isEmpty() || text.startsWith(u'#')) {
            continue;
        }
        if (text.startsWith(u'[')) {
            // What follows a damaged heading belongs to no group, not to the one before.
            group = text.endsWith(u']') ? &file.groups_[text.mid(1, text.size() - 2)] : nullptr;
            continue;
        }
        const auto equals = text.indexOf(u'=');
        if (group != nullptr && equals > 0) {
            group->try_emplace(text.left(equals).trimmed(), text.mid(equals + 1).trimmed());
        }
    }
    return file;
}

std::optional<KeyFile> KeyFile::read(const QString& path) {
    // Opening anything else, such as a named pipe, could wait forever.
    if (!QFileInfo(path).isFile()) {
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > longestFile) {
        return std::nullopt;
    }
    return parse(file.read(longestFile));
}

std::optional<QString> KeyFile::raw(const QString& group, const QString& key) const {
    const auto foundGroup = groups_.find(group);
    if (foundGroup == groups_.end()) {
        return std::nullopt;
    }
    const auto found = foundGroup->second.find(key);
    return found == foundGroup->second.end() ? std::nullopt : std::optional(found->second);
}

std::optional<QString> KeyFile::string(const QString& group, const QString& key) const {
    const auto value = raw(group, key);
    return value ? std::optional(unescaped(*value)) : std::nullopt;
}

std::optional<QString> KeyFile::localizedString(const QString& group, const QString& key,
                                                const QStringList& languages) const {
    for (const auto& language : languages) {
        if (auto value = string(group, key + u'[' + language + u']')) {
            return value;
        }
    }
    return string(group, key);
}

std::optional<bool> KeyFile::boolean(const QString& group, const QString& key) const {
    const auto value = raw(group, key);
    if (value == u"true" || value == u"false") {
        return value == u"true";
    }
    return std::nullopt;
}

QStringList KeyFile::list(const QString& group, const QString& key) const {
    const QString value = raw(group, key).value_or(QString());
    QStringList result;
    qsizetype start = 0;
    for (qsizetype index = 0; index <= value.size(); ++index) {
        if (index < value.size() && value[index] == u'\\') {
            ++index; // whatever is escaped separates nothing
            continue;
        }
        if (index == value.size() || value[index] == u';') {
            if (index > start) {
                result.append(unescaped(QStringView(value).mid(start, index - start)));
            }
            start = index + 1;
        }
    }
    return result;
}

QStringList localeSuffixes(const QString& locale) {
    const qsizetype at = locale.indexOf(u'@');
    const QString modifier = at < 0 ? QString() : locale.mid(at);
    const QString base = locale.left(at < 0 ? locale.size() : at).section(u'.', 0, 0);
    const QString language = base.section(u'_', 0, 0);
    if (language.isEmpty() || language == u"C" || language == u"POSIX") {
        return {};
    }
    QStringList suffixes{base + modifier, base, language + modifier, language};
    suffixes.removeDuplicates();
    return suffixes;
}

QString messagesLocale() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty()) {
            return value;
        }
    }
    return {};
}

} // namespace platform
