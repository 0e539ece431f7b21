#include "platform/macos/ScreenPicture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

QRectF toQRectF(const Rect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

QRectF coveredArea(const ScreenContents& contents) {
    QRectF area;
    for (const auto& display : contents.displays) {
        for (const auto& window : contents.windows) {
            area |= toQRectF(window) & toQRectF(display.frame);
        }
    }
    return area;
}

double sharpest(const ScreenContents& contents) {
    double scale = 1;
    for (const auto& display : contents.displays) {
        if (display.frame.width > 0) {
            scale = std::max(scale, display.picture.width() / display.frame.width);
        }
    }
    return scale;
}

} // namespace

QImage toPicture(const ScreenContents& contents) {
    const QRectF area = coveredArea(contents);
    const double scale = sharpest(contents);
    QImage picture(static_cast<int>(std::round(area.width() * scale)),
                   static_cast<int>(std::round(area.height() * scale)),
                   QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull()) {
        return {};
    }
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    painter.translate(-area.topLeft());
    for (const auto& display : contents.displays) {
        painter.drawImage(toQRectF(display.frame), display.picture);
    }
    return picture;
}

} // namespace platform
