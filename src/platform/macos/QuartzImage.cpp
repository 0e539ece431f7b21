#include "platform/macos/QuartzImage.h"

#include "platform/macos/CfReference.h"

#include <limits>

namespace platform {

QImage toQImage(CGImageRef image) {
    if (image == nullptr) {
        return {};
    }
    const std::size_t width = CGImageGetWidth(image);
    const std::size_t height = CGImageGetHeight(image);
    constexpr std::size_t longest = std::numeric_limits<int>::max();
    if (width == 0 || height == 0 || width > longest || height > longest) {
        return {};
    }
    QImage copy(static_cast<int>(width), static_cast<int>(height),
                QImage::Format_ARGB32_Premultiplied);
    if (copy.isNull()) {
        return {};
    }
    copy.fill(Qt::transparent);
    const CfReference<CGColorSpaceRef> colors(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    // The same order of bytes as the toolkit's format on the processors of this system.
    const CfReference<CGContextRef> context(CGBitmapContextCreate(
        copy.bits(), width, height, 8, static_cast<std::size_t>(copy.bytesPerLine()), colors.get(),
        static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) |
            static_cast<std::uint32_t>(kCGBitmapByteOrder32Little)));
    if (!context) {
        return {};
    }
    CGContextDrawImage(context.get(),
                       {{0, 0}, {static_cast<CGFloat>(width), static_cast<CGFloat>(height)}},
                       image);
    return copy;
}

} // namespace platform
