#include "platform/appcast/ReleaseNotes.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

namespace {

constexpr qsizetype longest = 20'000;
constexpr QChar bullet = u'\u2022';

using Entity = std::pair<QStringView, char16_t>;
constexpr std::array entities{
    Entity{u"amp", u'&'},         Entity{u"lt", u'<'},          Entity{u"gt", u'>'},
    Entity{u"quot", u'"'},        Entity{u"apos", u'\''},       Entity{u"nbsp", u'\u00A0'},
    Entity{u"copy", u'\u00A9'},   Entity{u"reg", u'\u00AE'},    Entity{u"deg", u'\u00B0'},
    Entity{u"middot", u'\u00B7'}, Entity{u"times", u'\u00D7'},  Entity{u"szlig", u'\u00DF'},
    Entity{u"Auml", u'\u00C4'},   Entity{u"Ouml", u'\u00D6'},   Entity{u"Uuml", u'\u00DC'},
    Entity{u"auml", u'\u00E4'},   Entity{u"ouml", u'\u00F6'},   Entity{u"uuml", u'\u00FC'},
    Entity{u"agrave", u'\u00E0'}, Entity{u"egrave", u'\u00E8'}, Entity{u"eacute", u'\u00E9'},
    Entity{u"ccedil", u'\u00E7'}, Entity{u"ndash", u'\u2013'},  Entity{u"mdash", u'\u2014'},
    Entity{u"lsquo", u'\u2018'},  Entity{u"rsquo", u'\u2019'},  Entity{u"ldquo", u'\u201C'},
    Entity{u"rdquo", u'\u201D'},  Entity{u"bdquo", u'\u201E'},  Entity{u"bull", u'\u2022'},
    Entity{u"hellip", u'\u2026'}, Entity{u"euro", u'\u20AC'},   Entity{u"trade", u'\u2122'},
    Entity{u"larr", u'\u2190'},   Entity{u"rarr", u'\u2192'},
};

/// What a character reference stands for; empty when it is none.
QString referenced(QStringView name) {
    if (name.startsWith(u'#')) {
        const bool isHexadecimal = name.size() > 1 && (name[1] == u'x' || name[1] == u'X');
        bool isNumber = false;
        const uint code = isHexadecimal ? name.sliced(2).toUInt(&isNumber, 16)
                                        : name.sliced(1).toUInt(&isNumber, 10);
        const bool isCharacter =
            isNumber && code > 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
        const char32_t character = code;
        return isCharacter ? QString::fromUcs4(&character, 1) : QString();
    }
    const auto found = std::find_if(entities.begin(), entities.end(),
                                    [&](const Entity& entity) { return entity.first == name; });
    return found == entities.end() ? QString() : QString(QChar(found->second));
}

/// Reads HTML for its words. A reader of whole documents is of no use here: the toolkit's takes
/// most of a minute for 64 KB of elements nested in one another.
class HtmlWords {
public:
    explicit HtmlWords(QStringView html)
        : html_(html) {}

    QString read() {
        while (at_ < html_.size() && text_.size() < longest) {
            const QChar character = html_[at_];
            if (character == u'<' && isTag()) {
                readTag();
            } else if (character == u'&') {
                readReference();
            } else {
                ++at_;
                if (character.isSpace() && character != QChar::Nbsp) {
                    isSpacePending_ = true;
                } else {
                    append(character);
                }
            }
        }
        return text_;
    }

private:
    bool isTag() const {
        const QChar next = at_ + 1 < html_.size() ? html_[at_ + 1] : QChar();
        return next.isLetter() || next == u'/' || next == u'!' || next == u'?';
    }

    void readTag() {
        if (html_.sliced(at_).startsWith(u"<!--")) {
            skipTo(QStringLiteral("-->"));
            return;
        }
        const qsizetype end = html_.indexOf(u'>', at_);
        const QStringView tag = html_.sliced(at_ + 1, (end < 0 ? html_.size() : end) - at_ - 1);
        at_ = end < 0 ? html_.size() : end + 1;
        const bool isEnd = tag.startsWith(u'/');
        const qsizetype start = isEnd ? 1 : 0;
        qsizetype length = start;
        while (length < tag.size() && tag[length].isLetterOrNumber()) {
            ++length;
        }
        obey(tag.sliced(start, length - start).toString().toLower(), isEnd);
    }

    void obey(const QString& name, bool isEnd) {
        if (!isEnd && (name == u"script" || name == u"style" || name == u"title")) {
            skipTo(QStringLiteral("</") + name);
        } else if (name == u"br") {
            text_ += u'\n';
            isSpacePending_ = false;
        } else if (name == u"li") {
            breakLines(1);
            if (!isEnd) {
                text_ += bullet;
                isSpacePending_ = true;
            }
        } else if (name == u"p" || (name.size() == 2 && name[0] == u'h' && name[1].isDigit())) {
            breakLines(2);
        } else if (name == u"div" || name == u"ul" || name == u"ol" || name == u"tr" ||
                   name == u"hr" || name == u"pre" || name == u"blockquote" || name == u"table") {
            breakLines(1);
        } else if (name == u"td" || name == u"th") {
            isSpacePending_ = true;
        }
    }

    void readReference() {
        constexpr qsizetype longestName = 10;
        const qsizetype end =
            html_.sliced(at_, std::min(longestName, html_.size() - at_)).indexOf(u';');
        const QString character = end < 0 ? QString() : referenced(html_.sliced(at_ + 1, end - 1));
        if (character.isEmpty()) {
            append(html_[at_++]);
        } else {
            append(character);
            at_ += end + 1;
        }
    }

    template <typename Text>
    void append(const Text& character) {
        if (std::exchange(isSpacePending_, false) && !text_.isEmpty() && !text_.endsWith(u'\n')) {
            text_ += u' ';
        }
        text_ += character;
    }

    /// At least so many line ends after the last word; a bullet stays with its text.
    void breakLines(int count) {
        if (text_.isEmpty() || text_.endsWith(bullet)) {
            return;
        }
        isSpacePending_ = false;
        const qsizetype size = text_.size();
        int ends = 0;
        while (ends < count && ends < size && text_[size - 1 - ends] == u'\n') {
            ++ends;
        }
        text_ += QString(count - ends, u'\n');
    }

    void skipTo(const QString& end) {
        const qsizetype found = html_.indexOf(end, at_, Qt::CaseInsensitive);
        at_ = found < 0 ? html_.size() : found + (end.startsWith(u'<') ? 0 : end.size());
    }

    QStringView html_;
    qsizetype at_ = 0;
    QString text_;
    bool isSpacePending_ = false;
};

/// Characters that say nothing, or turn the direction of what follows.
bool isHidden(QChar character) {
    switch (character.category()) {
    case QChar::Other_Control:
        return character != u'\n' && character != u'\t';
    case QChar::Other_Format:
        return character != QChar(0x200D); // joins the parts of some emoji
    default:
        return false;
    }
}

} // namespace

QString releaseNotesText(const QString& notes, NotesFormat format) {
    QString text = format == NotesFormat::Html ? HtmlWords(notes).read() : notes.left(longest);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.removeIf(isHidden);
    const bool isCut = text.size() >= longest;
    text = text.trimmed();
    return isCut ? text + QStringLiteral("\n…") : text;
}

} // namespace platform
