#include "ui/Label.h"

#include "platform/Platform.h"

#include <QAbstractButton>
#include <QLinearGradient>
#include <QPainter>

#include <cmath>

namespace ui {

namespace {

/// A label pales while the button around it is held down, and more so while it cannot be used.
double opacity(const QWidget& label) {
    if (!label.isEnabled()) {
        return 0.4;
    }
    for (const QWidget* widget = &label; widget != nullptr; widget = widget->parentWidget()) {
        const auto* button = dynamic_cast<const QAbstractButton*>(widget);
        if (button != nullptr && button->isDown()) {
            return 0.6;
        }
    }
    return 1;
}

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
        painter.setOpacity(opacity(*this));
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
            return color({colors.front()}, palette());
        }
        const bool mirrored = layoutDirection() == Qt::RightToLeft;
        QLinearGradient gradient(mirrored ? length : 0, 0, mirrored ? 0 : length, 0);
        for (std::size_t i = 0; i < colors.size(); ++i) {
            gradient.setColorAt(static_cast<double>(i) / static_cast<double>(colors.size() - 1),
                                color({colors[i]}, palette()));
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

/// Draws one line of text in the middle of itself.
class Text final : public QWidget {
public:
    Text(QString text, TextOptions options)
        : text_(std::move(text))
        , color_(options.color) {
        setFont(ui::font(options.pointSize, options.weight));
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAccessibleName(text_);
    }

    QSize sizeHint() const override {
        const QFontMetrics metrics = fontMetrics();
        return {metrics.horizontalAdvance(text_), metrics.height()};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setOpacity(opacity(*this));
        painter.setPen(color({color_}, palette()));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextDontClip, text_);
    }

private:
    QString text_;
    Color color_;
};

} // namespace

Element symbol(const QString& name, SymbolOptions options) {
    return Element(std::make_unique<Symbol>(name, std::move(options)));
}

Element text(const QString& text, TextOptions options) {
    return Element(std::make_unique<Text>(text, options));
}

} // namespace ui
