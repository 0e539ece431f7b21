#pragma once

#include <QByteArray>
#include <QString>

#include <exception>
#include <variant>

namespace feedback {

/// Why the feedback server did not take a record, or could not be asked.
class FeedbackError final : public std::exception {
public:
    /// The server answered with a status outside 200 to 299.
    struct HttpError {
        int statusCode = 0;
        /// Empty when the answer is not UTF-8.
        QString body;

        bool operator==(const HttpError&) const = default;
    };
    /// The endpoint is not a URL.
    struct InvalidUrl {
        bool operator==(const InvalidUrl&) const = default;
    };
    /// The answer is not an HTTP response, or names no record.
    struct InvalidResponse {
        bool operator==(const InvalidResponse&) const = default;
    };
    using Case = std::variant<HttpError, InvalidUrl, InvalidResponse>;

    FeedbackError(Case what); // NOLINT(google-explicit-constructor): a case is an error

    const Case& kind() const { return kind_; }

    /// What the user reads.
    const QString& errorDescription() const { return description_; }

    /// The same text in UTF-8.
    const char* what() const noexcept override { return utf8_.constData(); }

private:
    Case kind_;
    QString description_;
    QByteArray utf8_;
};

} // namespace feedback
