#include "platform/qt/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <sys/stat.h>

#include <utility>

namespace platform {

WholeFile::WholeFile(QString path)
    : path_(std::move(path)) {}

WholeFile::Contents WholeFile::read() {
    const QFileInfo info(path_);
    if (!info.exists()) {
        return Missing{};
    }
    if (!info.isFile()) {
        return Unreadable{QStringLiteral("not a file")};
    }
    const auto before = fingerprint();
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly)) {
        return Unreadable{file.errorString()};
    }
    const QByteArray contents = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return Unreadable{file.errorString()};
    }
    known_ = contents;
    knownAt_ = before;
    return contents;
}

WholeFile::Error WholeFile::replace(const QByteArray& contents) {
    if (knownAt_ && contents == known_ && fingerprint() == knownAt_) {
        return std::nullopt;
    }
    knownAt_.reset();
    const QString folder = QFileInfo(path_).path();
    if (!QDir().mkpath(folder)) {
        return QStringLiteral("%1 cannot be made").arg(folder);
    }
    // Writes beside the target of a link, syncs to the disk, renames over the old contents.
    // commit() alone would not tell that the disk was full when it flushed.
    QSaveFile file(path_);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size() ||
        !file.flush() || !file.commit()) {
        return file.errorString();
    }
    known_ = contents;
    knownAt_ = fingerprint();
    return std::nullopt;
}

std::optional<QString> WholeFile::setAside() {
    const QString canonical = QFileInfo(path_).canonicalFilePath();
    const QString real = canonical.isEmpty() ? path_ : canonical;
    constexpr int attempts = 1000;
    for (int number = 1; number <= attempts; ++number) {
        const QString name =
            number == 1 ? real + QLatin1String(".damaged")
                        : QStringLiteral("%1.damaged-%2").arg(real, QString::number(number));
        if (QFileInfo::exists(name)) {
            continue;
        }
        knownAt_.reset();
        return QDir().rename(real, name) ? std::optional(name) : std::nullopt;
    }
    return std::nullopt;
}

WholeFile::Error WholeFile::remove() {
    knownAt_.reset();
    QFile file(path_);
    return file.remove() ? std::nullopt : Error(file.errorString());
}

std::optional<WholeFile::Fingerprint> WholeFile::fingerprint() const {
    struct stat status {};
    if (::stat(QFile::encodeName(path_).constData(), &status) != 0) {
        return std::nullopt;
    }
    return Fingerprint{status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
                       status.st_mtim.tv_nsec};
}

} // namespace platform
