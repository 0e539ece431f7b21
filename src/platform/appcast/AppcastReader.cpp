#include "platform/appcast/AppcastReader.h"

#include "platform/appcast/BoundedXml.h"
#include "platform/appcast/XmlSurvey.h"

#include <QStringDecoder>

#include <algorithm>

namespace platform {

namespace {

constexpr qsizetype longestVersion = 64;
constexpr qsizetype longestUrl = 2'048;
constexpr qsizetype longestNotes = 100'000;
constexpr std::size_t mostItems = 2'000;

constexpr QLatin1String rss("");
constexpr QLatin1String sparkle("http://www.andymatuschak.org/xml-namespaces/sparkle");

/// One line without anything that could pass for something else where it is shown.
QString word(QString text) {
    text = text.simplified();
    text.removeIf([](QChar character) { return !character.isPrint(); });
    return text;
}

QString word(BoundedXml& xml) {
    return word(xml.text(longestVersion));
}

QString attribute(const BoundedXml& xml, const char* name) {
    const auto attributes = xml.attributes();
    return word(attributes.value(sparkle, QLatin1String(name)).left(longestVersion).toString());
}

/// Nothing but a page for a browser: a feed must not make the desktop open anything else.
QUrl pageUrl(const QString& text) {
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    const bool isPage = url.isValid() && !url.host().isEmpty() &&
                        (url.scheme() == u"https" || url.scheme() == u"http");
    return isPage ? url : QUrl();
}

/// How well an element in its language suits the user: the higher, the better.
qsizetype suitability(const BoundedXml& xml, const QStringList& languages) {
    const auto attributes = xml.attributes();
    const QString language = attributes.value(QLatin1String("xml:lang")).toString().toLower();
    const qsizetype count = languages.size();
    if (language.isEmpty()) {
        return 1;
    }
    const qsizetype position =
        std::find_if(languages.begin(), languages.end(),
                     [&](const QString& wanted) {
                         return language == wanted || language.startsWith(wanted + u'-');
                     }) -
        languages.begin();
    return position == count ? 0 : count - position + 1;
}

class ItemReader {
public:
    ItemReader(BoundedXml& xml, const AppcastAudience& audience)
        : xml_(xml)
        , audience_(audience) {}

    /// Nothing when the item has no version, or is for other systems.
    std::optional<AppcastItem> read() {
        while (xml_.nextChild()) {
            if (!readOwn() && !readRss()) {
                xml_.skip();
            }
        }
        item_.version = shortVersion_.isEmpty() ? ProgramVersion{version_, {}}
                                                : ProgramVersion{shortVersion_, version_};
        const bool isForUs = !hasEnclosure_ || enclosureRank_ > 0;
        return isForUs && !item_.version.marketing.isEmpty() ? std::optional(item_) : std::nullopt;
    }

private:
    bool isOwn(const char* name) const { return xml_.is(sparkle, QLatin1String(name)); }
    bool isRss(const char* name) const { return xml_.is(rss, QLatin1String(name)); }

    bool readOwn() {
        if (isOwn("version")) {
            replaceUnlessEmpty(version_, word(xml_));
        } else if (isOwn("shortVersionString")) {
            replaceUnlessEmpty(shortVersion_, word(xml_));
        } else if (isOwn("channel")) {
            item_.channel = word(xml_);
        } else if (isOwn("minimumSystemVersion")) {
            item_.minimumSystemVersion = word(xml_);
        } else if (isOwn("maximumSystemVersion")) {
            item_.maximumSystemVersion = word(xml_);
        } else if (isOwn("phasedRolloutInterval")) {
            readPhase();
        } else if (isOwn("criticalUpdate")) {
            item_.isCritical = true;
            item_.criticalBelow = attribute(xml_, "version");
            xml_.skip();
        } else if (isOwn("tags")) {
            while (xml_.nextChild()) {
                item_.isCritical = item_.isCritical || isOwn("criticalUpdate");
                xml_.skip();
            }
        } else if (isOwn("releaseNotesLink")) {
            const qsizetype rank = suitability(xml_, audience_.languages);
            const QUrl url = pageUrl(xml_.text(longestUrl));
            if (!url.isEmpty() && rank > notesPageRank_) {
                notesPageRank_ = rank;
                item_.releaseNotesPage = url;
            }
        } else {
            return false;
        }
        return true;
    }

    bool readRss() {
        if (isRss("enclosure")) {
            readEnclosure();
        } else if (isRss("link")) {
            item_.page = pageUrl(xml_.text(longestUrl));
        } else if (isRss("pubDate")) {
            item_.published = QDateTime::fromString(word(xml_), Qt::RFC2822Date);
        } else if (isRss("description")) {
            readDescription();
        } else {
            return false;
        }
        return true;
    }

    void readPhase() {
        bool isNumber = false;
        const qlonglong seconds = word(xml_).toLongLong(&isNumber);
        constexpr qlonglong longest = 366LL * 24 * 60 * 60;
        if (isNumber && seconds > 0 && seconds <= longest) {
            item_.phasedRolloutInterval = std::chrono::seconds(seconds);
        }
    }

    void readDescription() {
        const qsizetype rank = suitability(xml_, audience_.languages);
        const bool isHtml =
            attribute(xml_, "format").isEmpty() || attribute(xml_, "format") == u"html";
        const QString notes = xml_.text(longestNotes);
        if (rank > notesRank_) {
            notesRank_ = rank;
            item_.notes = notes;
            item_.notesFormat = isHtml ? NotesFormat::Html : NotesFormat::PlainText;
        }
    }

    /// One for this very system wins over one that names none.
    void readEnclosure() {
        const QString system = attribute(xml_, "os").toLower();
        int rank = 0;
        if (system.isEmpty()) {
            rank = 1;
        } else if (system == audience_.system || system.startsWith(audience_.system + u'-')) {
            rank = 2;
        }
        hasEnclosure_ = true;
        if (rank > enclosureRank_) {
            enclosureRank_ = rank;
            replaceUnlessEmpty(version_, attribute(xml_, "version"));
            replaceUnlessEmpty(shortVersion_, attribute(xml_, "shortVersionString"));
        }
        xml_.skip();
    }

    static void replaceUnlessEmpty(QString& text, const QString& replacement) {
        if (!replacement.isEmpty()) {
            text = replacement;
        }
    }

    BoundedXml& xml_;
    const AppcastAudience& audience_;
    AppcastItem item_;
    QString version_;
    QString shortVersion_;
    bool hasEnclosure_ = false;
    int enclosureRank_ = 0;
    qsizetype notesRank_ = -1;
    qsizetype notesPageRank_ = -1;
};

} // namespace

std::variant<std::vector<AppcastItem>, AppcastError> readAppcast(const QByteArray& feed,
                                                                 const AppcastAudience& audience) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString document = decoder.decode(feed);
    if (decoder.hasError()) {
        return AppcastError{QStringLiteral("it is not UTF-8")};
    }
    if (const auto objection = objectionTo(document)) {
        return AppcastError{*objection};
    }
    BoundedXml xml(document);
    std::vector<AppcastItem> items;
    bool hasChannel = false;
    const bool isFeed = xml.nextChild() && xml.is(rss, QLatin1String("rss"));
    while (isFeed && xml.nextChild()) {
        if (!xml.is(rss, QLatin1String("channel"))) {
            xml.skip();
            continue;
        }
        hasChannel = true;
        while (xml.nextChild()) {
            if (!xml.is(rss, QLatin1String("item")) || items.size() >= mostItems) {
                xml.skip();
            } else if (auto item = ItemReader(xml, audience).read()) {
                items.push_back(std::move(*item));
            }
        }
    }
    if (const auto error = xml.error()) {
        return AppcastError{*error};
    }
    if (!hasChannel) {
        return AppcastError{QStringLiteral("it is not an appcast")};
    }
    return items;
}

} // namespace platform
