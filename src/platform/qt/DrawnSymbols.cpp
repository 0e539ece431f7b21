#include "platform/qt/DrawnSymbols.h"

#include <QByteArray>
#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

/// Every drawing is this many grid units tall; the width is its own.
constexpr double gridHeight = 18;

/// The point size at which a grid unit is one point. It is the formatting bar's, so that there a
/// stroke on the grid falls on whole pixels.
constexpr double gridPointSize = 14;

/// What the drawings' main stroke is drawn with, in grid units.
constexpr double drawnStroke = 1.5;

constexpr int largestPixelHeight = 1024;
constexpr int cachedBytes = 1 << 20;

double strokeOf(platform::SymbolWeight weight) {
    switch (weight) {
    case platform::SymbolWeight::Regular:
        return 1.25;
    case platform::SymbolWeight::Medium:
        return 1.5;
    case platform::SymbolWeight::Semibold:
        return 1.8;
    case platform::SymbolWeight::Bold:
        return 2.2;
    }
    Q_UNREACHABLE();
}

QByteArray withStrokesScaled(const QByteArray& drawing, double factor) {
    static const QRegularExpression strokeWidth(QStringLiteral("stroke-width=\"([0-9.]+)\""));
    const QString source = QString::fromUtf8(drawing);
    QString scaled;
    qsizetype copied = 0;
    for (auto matches = strokeWidth.globalMatch(source); matches.hasNext();) {
        const auto match = matches.next();
        scaled += QStringView(source).mid(copied, match.capturedStart(1) - copied);
        scaled += QString::number(match.capturedView(1).toDouble() * factor, 'f', 4);
        copied = match.capturedEnd(1);
    }
    scaled += QStringView(source).mid(copied);
    return scaled.toUtf8();
}

QImage render(const QByteArray& drawing, platform::SymbolWeight weight, int pixelHeight) {
    const double scale = pixelHeight / gridHeight;
    QSvgRenderer renderer(withStrokesScaled(drawing, strokeOf(weight) / drawnStroke));
    const QSizeF size = renderer.viewBoxF().size() * scale;

    QImage image(static_cast<int>(std::ceil(size.width() - 0.01)), pixelHeight,
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // Strokes run on whole grid units: moved by so much, their upper and left edges are sharp.
    const double halfStroke = strokeOf(weight) * scale / 2;
    const double toPixelEdge = halfStroke - std::round(halfStroke);
    const double surplus = (image.width() - size.width()) / 2;
    renderer.render(&painter, QRectF({toPixelEdge + surplus, toPixelEdge}, size));
    painter.end();
    return image.convertToFormat(QImage::Format_Alpha8);
}

} // namespace

namespace platform {

DrawnSymbols::DrawnSymbols()
    : masks_(cachedBytes) {}

QImage DrawnSymbols::mask(const QString& name, const SymbolStyle& style, double devicePixelRatio) {
    const double height = gridHeight / gridPointSize * style.pointSize * devicePixelRatio;
    if (!(style.pointSize > 0 && devicePixelRatio > 0 && height <= largestPixelHeight)) {
        return {};
    }
    const Key key{name, style.pointSize, style.weight, devicePixelRatio};
    if (const QImage* known = masks_.object(key)) {
        return *known;
    }
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QImage image =
        render(file.readAll(), style.weight, std::max(1, static_cast<int>(std::round(height))));
    image.setDevicePixelRatio(devicePixelRatio);
    masks_.insert(key, std::make_unique<QImage>(image).release(), image.sizeInBytes());
    return image;
}

} // namespace platform
