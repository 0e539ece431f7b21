#include "platform/qt/ThemeApplicationIcons.h"

#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>

namespace platform {

namespace {

constexpr qint64 longestFile = 8 * 1024 * 1024;

/// Stretched to the square, whatever its shape.
QImage fromFile(const QString& path, int pixels) {
    const QFileInfo file(path);
    // Opening anything else, such as a named pipe, could wait forever.
    if (!file.isFile() || file.size() > longestFile) {
        return {};
    }
    QImageReader reader(path);
    reader.setScaledSize(QSize(pixels, pixels));
    return reader.read();
}

/// Names may come with the suffix of a file, which the theme does not want.
QString themeName(const QString& name) {
    for (const QStringView suffix :
         {QStringView(u".png"), QStringView(u".svg"), QStringView(u".xpm")}) {
        if (name.endsWith(suffix)) {
            return name.chopped(suffix.size());
        }
    }
    return name;
}

QImage fromTheme(const QString& name, int pixels) {
    const QIcon icon = QIcon::fromTheme(themeName(name));
    // The ratio is one: the icon is asked for in pixels.
    const QImage image = icon.pixmap(QSize(pixels, pixels), 1.0).toImage();
    if (image.isNull() || image.size() == QSize(pixels, pixels)) {
        return image;
    }
    return image.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Desktops that tell the toolkit of no theme leave it with the one in which applications install
/// their own icons: what they name in general terms comes from a theme that is there.
void chooseFallbackTheme() {
    const QStringList folders = QIcon::themeSearchPaths();
    for (const QString& theme : {QStringLiteral("Adwaita"), QStringLiteral("breeze"),
                                 QStringLiteral("Papirus"), QStringLiteral("gnome")}) {
        for (const QString& folder : folders) {
            if (QFileInfo::exists(folder + QLatin1Char('/') + theme +
                                  QStringLiteral("/index.theme"))) {
                QIcon::setFallbackThemeName(theme);
                // Themes that were read before forget what they fell back to.
                QIcon::setThemeSearchPaths(folders);
                return;
            }
        }
    }
}

} // namespace

QImage ThemeApplicationIcons::picture(const IconReference& icon, int side,
                                      double devicePixelRatio) {
    const int pixels = qRound(side * devicePixelRatio);
    if (icon.nameOrPath.isEmpty() || pixels <= 0) {
        return {};
    }
    const QString key = QString::number(pixels) + QLatin1Char(' ') + icon.nameOrPath;
    const QImage* known = kept_.object(key);
    QImage image = known != nullptr ? *known : QImage();
    if (known == nullptr) {
        if (!themeChosen_) {
            themeChosen_ = true;
            chooseFallbackTheme();
        }
        const bool isPath = icon.nameOrPath.startsWith(u'/');
        image = isPath ? fromFile(icon.nameOrPath, pixels) : fromTheme(icon.nameOrPath, pixels);
        constexpr qsizetype leastCost = 256;
        kept_.insert(key, new QImage(image), qMax(leastCost, image.sizeInBytes()));
    }
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

} // namespace platform
