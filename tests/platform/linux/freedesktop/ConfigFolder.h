#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace fakes {

/// A configuration folder of a test's own that goes with it.
class ConfigFolder {
public:
    ConfigFolder() { EXPECT_TRUE(folder_.isValid()); }

    QString path(const QString& name) const { return folder_.filePath(name); }

    /// Makes the folders on the way.
    void write(const QString& name, const QByteArray& contents) const {
        QDir().mkpath(path(name).section(u'/', 0, -2));
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(contents), contents.size());
    }
    /// Null when there is no such file.
    QByteArray read(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The names in the folder, joined with blanks.
    QString names() const {
        return QDir(folder_.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name)
            .join(u' ');
    }

private:
    QTemporaryDir folder_;
};

} // namespace fakes
