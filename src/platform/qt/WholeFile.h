#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <variant>

namespace platform {

/// A small file that is only ever read and replaced as a whole: whenever this process is killed,
/// the old or the new contents are there. A symbolic link is followed and stays one.
class WholeFile {
public:
    /// The system's description of what went wrong; empty for success.
    using Error = std::optional<QString>;

    struct Missing {};
    struct Unreadable {
        QString reason;
    };
    using Contents = std::variant<QByteArray, Missing, Unreadable>;

    explicit WholeFile(QString path);

    const QString& path() const { return path_; }

    /// What is no regular file is unreadable; opening it could block for ever.
    Contents read();

    /// Makes the folders on the way where they are missing. Does not touch the disk when these
    /// are the contents last read or written and the file has not changed since.
    [[nodiscard]] Error replace(const QByteArray& contents);

    /// Renames whatever stands in the file's place to a name that nothing bears yet and answers
    /// that name; empty when it could not be renamed.
    std::optional<QString> setAside();

    [[nodiscard]] Error remove();

private:
    /// Tells one state of a file from the next without reading it.
    struct Fingerprint {
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        std::int64_t size = 0;
        std::int64_t modifiedSeconds = 0;
        std::int64_t modifiedNanoseconds = 0;

        bool operator==(const Fingerprint&) const = default;
    };
    std::optional<Fingerprint> fingerprint() const;

    QString path_;
    QByteArray known_;
    std::optional<Fingerprint> knownAt_;
};

} // namespace platform
