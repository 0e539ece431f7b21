#include "platform/appcast/XmlSurvey.h"

#include <QString>

namespace platform {

namespace {

constexpr int mostAttributes = 64;

/// Goes from one piece of markup to the next. Where the document is not well-formed the reader
/// stops, so that what is found after such a place does not matter.
class Survey {
public:
    explicit Survey(QStringView document)
        : document_(document) {}

    std::optional<QString> objection() {
        while ((at_ = document_.indexOf(u'<', at_)) >= 0) {
            if (skip(u"<!--", u"-->") || skip(u"<![CDATA[", u"]]>") || skip(u"<?", u"?>")) {
                continue;
            }
            if (document_.sliced(at_).startsWith(u"<!")) {
                return QStringLiteral("document types are not accepted");
            }
            if (attributesOfTag() > mostAttributes) {
                return QStringLiteral("too many attributes");
            }
        }
        return std::nullopt;
    }

private:
    bool skip(QStringView start, QStringView end) {
        if (!document_.sliced(at_).startsWith(start)) {
            return false;
        }
        const qsizetype found = document_.indexOf(end, at_ + start.size());
        at_ = found < 0 ? document_.size() : found + end.size();
        return true;
    }

    /// Leaves the tag.
    int attributesOfTag() {
        int values = 0;
        for (++at_; at_ < document_.size() && document_[at_] != u'>'; ++at_) {
            if (document_[at_] == u'"' || document_[at_] == u'\'') {
                ++values;
                const qsizetype end = document_.indexOf(document_[at_], at_ + 1);
                at_ = end < 0 ? document_.size() - 1 : end;
            }
        }
        return values;
    }

    QStringView document_;
    qsizetype at_ = 0;
};

} // namespace

std::optional<QString> objectionTo(QStringView document) {
    return Survey(document).objection();
}

} // namespace platform
