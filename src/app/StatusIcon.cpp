#include "app/StatusIcon.h"

#include "platform/Symbols.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>

namespace app {

namespace {

/// Draws one symbol as large as it fits.
class SymbolIconEngine final : public QIconEngine {
public:
    SymbolIconEngine(platform::Symbols& symbols, QString symbolName)
        : symbols_(symbols)
        , symbolName_(std::move(symbolName)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const QImage image = tinted(rect.size(), painter->device()->devicePixelRatio());
        const QSizeF size = image.deviceIndependentSize();
        painter->drawImage(QPointF(rect.x() + (rect.width() - size.width()) / 2,
                                   rect.y() + (rect.height() - size.height()) / 2),
                           image);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    /// What panels commonly show, at one and at two pixels a point.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        return {QSize(16, 16), QSize(22, 22), QSize(24, 24), QSize(32, 32), QSize(48, 48)};
    }

    bool isNull() override { return false; }

    QIconEngine* clone() const override { return new SymbolIconEngine(symbols_, symbolName_); }

private:
    QImage tinted(const QSize& box, double devicePixelRatio) {
        constexpr auto weight = platform::SymbolWeight::Medium;
        const auto maskOf = [&](double pointSize) {
            return symbols_.mask(symbolName_, {pointSize, weight}, devicePixelRatio);
        };
        // A symbol's size is nearly proportional to its point size; its own measure says how.
        const double trial = box.height();
        const QSizeF measured = maskOf(trial).deviceIndependentSize();
        if (measured.isEmpty()) {
            return {};
        }
        const QImage mask = maskOf(
            trial * std::min(box.width() / measured.width(), box.height() / measured.height()));
        QImage image(mask.size(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(devicePixelRatio);
        image.fill(QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText));
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.drawImage(0, 0, mask);
        return image;
    }

    platform::Symbols& symbols_;
    QString symbolName_;
};

} // namespace

QIcon statusIcon(platform::Symbols& symbols, const QString& symbolName) {
    QIcon icon(new SymbolIconEngine(symbols, symbolName));
    icon.setIsMask(true);
    return icon;
}

} // namespace app
