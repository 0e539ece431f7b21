#include "ui/Label.h"

#include "platform/Platform.h"
#include "ui/LabelOpacity.h"

#include <QLinearGradient>
#include <QPainter>

#include <cmath>

namespace ui {

namespace {

/// Draws one system symbol in the middle of itself.
class Symbol final : public QWidget {
public:
    Symbol(QString name, SymbolOptions options)
        : name_(std::move(name))
        , options_(std::move(options)) {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    QSize sizeHint() const override { return mask(1).size(); }

protected:
    void paintEvent(QPaintEvent*) override {
        const QImage shape = mask(devicePixelRatioF());
        if (shape.isNull()) {
            return;
        }
        QPainter painter(this);
        painter.setOpacity(labelOpacity(*this));
        const QSizeF size = shape.deviceIndependentSize();
        const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
        painter.drawImage(onDevicePixels(painter, corner), tinted(shape));
    }

private:
    QImage mask(double ratio) const {
        return platform::current().symbols->mask(name_, {options_.pointSize, options_.weight},
                                                 ratio);
    }

    QImage tinted(const QImage& shape) const {
        QImage image(shape.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.drawImage(0, 0, withoutRatio(shape));
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), brush(image.width()));
        painter.end();
        image.setDevicePixelRatio(shape.devicePixelRatio());
        return image;
    }

    QBrush brush(int length) const {
        const auto& colors = options_.colors;
        if (colors.size() == 1) {
            return color(colors.front()(), palette());
        }
        const bool mirrored = layoutDirection() == Qt::RightToLeft;
        QLinearGradient gradient(mirrored ? length : 0, 0, mirrored ? 0 : length, 0);
        for (std::size_t i = 0; i < colors.size(); ++i) {
            gradient.setColorAt(static_cast<double>(i) / static_cast<double>(colors.size() - 1),
                                color(colors[i](), palette()));
        }
        return gradient;
    }

    static QImage withoutRatio(QImage image) {
        image.setDevicePixelRatio(1);
        return image;
    }

    /// The nearest place at which the image's pixels are those of the device.
    static QPointF onDevicePixels(const QPainter& painter, QPointF point) {
        const QTransform device = painter.deviceTransform();
        const QPointF pixel = device.map(point);
        return device.inverted().map(QPointF(std::round(pixel.x()), std::round(pixel.y())));
    }

    QString name_;
    SymbolOptions options_;
};

} // namespace

Element symbol(const QString& name, SymbolOptions options) {
    return Element(std::make_unique<Symbol>(name, std::move(options)));
}

} // namespace ui
