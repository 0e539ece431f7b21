#include "ui/Label.h"

#include "platform/Platform.h"
#include "ui/DevicePixels.h"
#include "ui/LabelOpacity.h"

#include <QLinearGradient>
#include <QPainter>

#include <utility>

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
        painter.fillRect(image.rect(), brush(columnsOf(image)));
        painter.end();
        image.setDevicePixelRatio(shape.devicePixelRatio());
        return image;
    }

    /// What is drawn of an image lies between these columns, however large its cell.
    static std::pair<int, int> columnsOf(const QImage& image) {
        const auto isDrawn = [&](int x) {
            for (int y = 0; y < image.height(); ++y) {
                if (qAlpha(image.pixel(x, y)) > 0) {
                    return true;
                }
            }
            return false;
        };
        int first = 0;
        int end = image.width();
        while (first < end && !isDrawn(first)) {
            ++first;
        }
        while (end > first && !isDrawn(end - 1)) {
            --end;
        }
        return {first, end};
    }

    QBrush brush(std::pair<int, int> columns) const {
        const auto& colors = options_.colors;
        if (colors.size() == 1) {
            return color(colors.front()(), palette());
        }
        const bool mirrored = layoutDirection() == Qt::RightToLeft;
        const auto [first, end] = columns;
        QLinearGradient gradient(mirrored ? end : first, 0, mirrored ? first : end, 0);
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

    QString name_;
    SymbolOptions options_;
};

} // namespace

Element symbol(const QString& name, SymbolOptions options) {
    return Element(std::make_unique<Symbol>(name, std::move(options)));
}

} // namespace ui
