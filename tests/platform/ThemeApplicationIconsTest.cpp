#include "platform/qt/ThemeApplicationIcons.h"

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using platform::ThemeApplicationIcons;

namespace {

class ThemeApplicationIconsTest : public testing::Test {
protected:
    ThemeApplicationIconsTest() {
        const QString theme = folder.filePath(QStringLiteral("paper"));
        QDir().mkpath(theme + QStringLiteral("/48x48/apps"));
        QFile index(theme + QStringLiteral("/index.theme"));
        EXPECT_TRUE(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=Paper\nDirectories=48x48/apps\n\n"
                    "[48x48/apps]\nSize=48\nType=Fixed\n");
        save(theme + QStringLiteral("/48x48/apps/notes.png"), QSize(48, 48), Qt::green);
        QIcon::setThemeSearchPaths({folder.path()});
        QIcon::setThemeName(QStringLiteral("paper"));
    }
    ~ThemeApplicationIconsTest() override {
        QIcon::setThemeName(themeName_);
        QIcon::setThemeSearchPaths(searchPaths_);
    }

    static void save(const QString& path, QSize size, QColor color) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        EXPECT_TRUE(image.save(path));
    }

    QTemporaryDir folder;
    ThemeApplicationIcons icons;

private:
    const QStringList searchPaths_ = QIcon::themeSearchPaths();
    const QString themeName_ = QIcon::themeName();
};

} // namespace

TEST_F(ThemeApplicationIconsTest, NamesAreLookedUpInTheThemeWithAndWithoutASuffix) {
    for (const char* name : {"notes", "notes.png", "notes.svg"}) {
        const QImage picture = icons.picture({QString::fromLatin1(name)}, 24, 2);
        EXPECT_EQ(picture.size(), QSize(48, 48)) << name;
        EXPECT_EQ(picture.devicePixelRatio(), 2) << name;
        EXPECT_EQ(picture.pixelColor(24, 24), QColor(Qt::green)) << name;
    }
    EXPECT_EQ(icons.picture({QStringLiteral("notes")}, 24, 1).size(), QSize(24, 24));
}

TEST_F(ThemeApplicationIconsTest, WhatIsNoPictureIsNull) {
    QFile damaged(folder.filePath(QStringLiteral("damaged.png")));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("\x89PNG, but no more");
    damaged.close();
    for (const QString& name : {damaged.fileName(), folder.path(), QString(),
                                folder.filePath(QStringLiteral("missing.png")),
                                QStringLiteral("no-such-icon"), QStringLiteral("../notes")}) {
        EXPECT_TRUE(icons.picture({name}, 24, 1).isNull()) << name.toStdString();
    }
}
