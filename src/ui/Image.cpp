#include "ui/Image.h"

#include "ui/AccessibleRole.h"
#include "ui/RoundedRectangle.h"

#include <QPainter>

namespace ui {

namespace {

class Picture final : public QWidget {
public:
    explicit Picture(ImageOptions options)
        : options_(std::move(options)) {
        QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        setAccessibleName(options_.accessibilityLabel);
        setAccessibleRole(*this, QAccessible::Graphic);
    }

    void setPicture(const QImage& picture) {
        picture_ = picture;
        updateGeometry();
        update();
    }

    QSize sizeHint() const override { return fitted(QWIDGETSIZE_MAX); }
    QSize minimumSizeHint() const override { return {0, 0}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return fitted(width).height(); }

protected:
    void paintEvent(QPaintEvent*) override {
        const QRect place({}, fitted(width()));
        if (place.isEmpty()) {
            return;
        }
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        // As a brush its corners are smooth, which a clip's are not.
        const QSize pixels = place.size() * devicePixelRatioF();
        QBrush brush(picture_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        brush.setTransform(QTransform::fromScale(double(place.width()) / pixels.width(),
                                                 double(place.height()) / pixels.height()));
        painter.fillPath(RoundedRectangle{options_.cornerRadius}.path(place), brush);
    }

private:
    /// As large as a picture of these proportions gets within a width and the maximum height.
    QSize fitted(int width) const {
        return picture_.isNull()
                   ? QSize(0, 0)
                   : picture_.size().scaled(width, options_.maximumHeight, Qt::KeepAspectRatio);
    }

    ImageOptions options_;
    QImage picture_;
};

} // namespace

Element image(Binding<QImage> picture, ImageOptions options) {
    auto widget = std::make_unique<Picture>(std::move(options));
    Picture& shown = *widget;
    shown.setPicture(picture->get());
    keep(shown, std::pair(picture, picture->observe(
                                       [&shown](const QImage& next) { shown.setPicture(next); })));
    return Element(std::move(widget));
}

} // namespace ui
