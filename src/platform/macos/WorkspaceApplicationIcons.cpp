#include "platform/macos/WorkspaceApplicationIcons.h"

#include "platform/macos/NativeImages.h"

#include <cmath>
#include <memory>

namespace platform {

QImage WorkspaceApplicationIcons::picture(const IconReference& icon, int side,
                                          double devicePixelRatio) {
    constexpr double largest = 4096;
    const double pixels = std::round(side * devicePixelRatio);
    if (!(pixels >= 1 && pixels <= largest)) {
        return {};
    }
    const QString key = QStringLiteral("%1|%2|%3").arg(icon.nameOrPath).arg(side).arg(pixels);
    if (const QImage* known = kept_.object(key)) {
        return *known;
    }
    const int length = static_cast<int>(pixels);
    QImage picture = nativeImages::iconOfFile(icon.nameOrPath, QSize(length, length));
    picture.setDevicePixelRatio(devicePixelRatio);
    // What was looked for in vain is kept too, as null.
    kept_.insert(key, std::make_unique<QImage>(picture).release(),
                 1 + static_cast<int>(picture.sizeInBytes()));
    return picture;
}

} // namespace platform
