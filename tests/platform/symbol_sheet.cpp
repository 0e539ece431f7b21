/// Draws every symbol with its name, light and dark, at several sizes, for judging by eye:
/// symbol_sheet FILE.png [device pixel ratio [regular|medium|semibold|bold]]

#include "platform/qt/DrawnSymbols.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include <cstdio>
#include <optional>

namespace {

constexpr int columns = 8;
constexpr QSize cell(232, 96);
constexpr double pointSizes[] = {14, 16, 32, 64};

struct Appearance {
    QColor background;
    QColor foreground;
};
const Appearance appearances[] = {{QColor(0xf6, 0xf6, 0xf6), QColor(0x1d, 0x1d, 0x1f)},
                                  {QColor(0x26, 0x26, 0x28), QColor(0xee, 0xee, 0xee)}};

std::optional<platform::SymbolWeight> weightNamed(const QString& name) {
    const QStringList names{QStringLiteral("regular"), QStringLiteral("medium"),
                            QStringLiteral("semibold"), QStringLiteral("bold")};
    const auto index = names.indexOf(name);
    if (index < 0) {
        return std::nullopt;
    }
    return static_cast<platform::SymbolWeight>(index);
}

QImage tinted(const QImage& mask, const QColor& color) {
    QImage image(mask.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    image.setDevicePixelRatio(mask.devicePixelRatio());
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(QPointF(), mask);
    return image;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const double ratio = arguments.value(2, QStringLiteral("1")).toDouble();
    const auto weight = weightNamed(arguments.value(3, QStringLiteral("medium")));
    if (arguments.size() < 2 || ratio <= 0 || !weight) {
        std::fprintf(stderr, "usage: symbol_sheet FILE.png [RATIO [WEIGHT]]\n");
        return 2;
    }

    platform::DrawnSymbols symbols;
    QStringList names = QDir(QStringLiteral(":/symbols")).entryList();
    const int rows = (static_cast<int>(names.size()) + columns - 1) / columns;
    QImage sheet(QSize(columns * cell.width(), 2 * rows * cell.height()) * ratio,
                 QImage::Format_RGB32);
    sheet.setDevicePixelRatio(ratio);
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    int top = 0;
    for (const Appearance& appearance : appearances) {
        painter.fillRect(0, top, columns * cell.width(), rows * cell.height(),
                         appearance.background);
        painter.setPen(appearance.foreground);
        for (int index = 0; index < names.size(); ++index) {
            const QString name = names.at(index).chopped(4);
            const QPoint corner(index % columns * cell.width(),
                                top + index / columns * cell.height());
            painter.drawText(QRect(corner, cell), Qt::AlignBottom | Qt::AlignHCenter, name);
            int x = corner.x() + 6;
            for (const double pointSize : pointSizes) {
                const QImage mask = symbols.mask(name, {pointSize, *weight}, ratio);
                const double height = mask.height() / ratio;
                painter.drawImage(
                    QPointF(x, corner.y() + std::round((82 - height) / 2 * ratio) / ratio),
                    tinted(mask, appearance.foreground));
                x += static_cast<int>(mask.width() / ratio) + 6;
            }
        }
        top += rows * cell.height();
    }
    painter.end();
    return sheet.save(arguments.at(1)) ? 0 : 1;
}
