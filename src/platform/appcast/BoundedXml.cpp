#include "platform/appcast/BoundedXml.h"

namespace platform {

namespace {

constexpr int deepest = 64;
constexpr int mostElements = 100'000;

} // namespace

QXmlStreamReader::TokenType BoundedXml::next() {
    const auto token = reader_.readNext();
    if (token == QXmlStreamReader::StartElement) {
        if (++depth_ > deepest || ++elements_ > mostElements) {
            reader_.raiseError(QStringLiteral("too many elements"));
        }
    } else if (token == QXmlStreamReader::EndElement) {
        --depth_;
    }
    return reader_.hasError() ? QXmlStreamReader::Invalid : token;
}

bool BoundedXml::nextChild() {
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            return false;
        default:
            break;
        }
    }
}

void BoundedXml::skip() {
    const int outside = depth_ - 1;
    while (depth_ > outside && next() != QXmlStreamReader::Invalid) {
    }
}

QString BoundedXml::text(qsizetype limit) {
    QString text;
    const int inside = depth_;
    while (depth_ >= inside) {
        const auto token = next();
        if (token == QXmlStreamReader::Invalid) {
            break;
        }
        if (token == QXmlStreamReader::Characters && depth_ == inside && text.size() < limit) {
            text += reader_.text().left(limit - text.size());
        }
    }
    return text;
}

std::optional<QString> BoundedXml::error() const {
    if (!reader_.hasError()) {
        return std::nullopt;
    }
    return QStringLiteral("line %1: %2").arg(reader_.lineNumber()).arg(reader_.errorString());
}

} // namespace platform
