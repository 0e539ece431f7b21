#include "platform/macos/SystemSymbols.h"

#include "platform/macos/NativeImages.h"

#include <memory>

namespace platform {

QImage SystemSymbols::mask(const QString& name, const SymbolStyle& style, double devicePixelRatio) {
    const QString key = QStringLiteral("%1|%2|%3|%4")
                            .arg(name)
                            .arg(style.pointSize)
                            .arg(static_cast<int>(style.weight))
                            .arg(devicePixelRatio);
    if (const QImage* known = masks_.object(key)) {
        return *known;
    }
    constexpr double largest = 1024;
    const bool sensible = style.pointSize > 0 && devicePixelRatio > 0 &&
                          style.pointSize * devicePixelRatio <= largest;
    QImage image = sensible ? nativeImages::symbol(name, style, devicePixelRatio) : QImage();
    if (image.isNull()) {
        return drawings_.mask(name, style, devicePixelRatio);
    }
    image = image.convertToFormat(QImage::Format_Alpha8);
    image.setDevicePixelRatio(devicePixelRatio);
    masks_.insert(key, std::make_unique<QImage>(image).release(),
                  static_cast<int>(image.sizeInBytes()));
    return image;
}

} // namespace platform
