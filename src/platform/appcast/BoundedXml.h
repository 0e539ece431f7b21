#pragma once

#include <QXmlStreamReader>

#include <optional>

namespace platform {

/// Walks through an XML document from outside, with limits for its depth and the number of its
/// elements.
class BoundedXml {
public:
    explicit BoundedXml(const QString& document)
        : reader_(document) {}

    /// Goes on to the next child of the current element; false at its end, or after an error.
    bool nextChild();

    /// Leaves the current element, whatever is in it.
    void skip();

    /// Leaves the current element; its own text without that of its children, cut to a length.
    QString text(qsizetype limit);

    bool is(QLatin1String space, QLatin1String name) const {
        return reader_.name() == name && reader_.namespaceUri() == space;
    }
    QXmlStreamAttributes attributes() const { return reader_.attributes(); }

    /// Why the document cannot be read, with its line; empty as long as it can.
    std::optional<QString> error() const;

private:
    QXmlStreamReader::TokenType next();

    QXmlStreamReader reader_;
    int depth_ = 0;
    int elements_ = 0;
};

} // namespace platform
