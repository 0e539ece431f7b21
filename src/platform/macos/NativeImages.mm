#include "platform/macos/NativeImages.h"

#include "platform/macos/CocoaValues.hh"
#include "platform/macos/Strong.hh"

#include <AppKit/AppKit.h>

#include <cmath>

namespace platform::nativeImages {

namespace {

NSFontWeight toWeight(SymbolWeight weight) {
    switch (weight) {
    case SymbolWeight::Regular:
        return NSFontWeightRegular;
    case SymbolWeight::Medium:
        return NSFontWeightMedium;
    case SymbolWeight::Semibold:
        return NSFontWeightSemibold;
    case SymbolWeight::Bold:
        break;
    }
    return NSFontWeightBold;
}

Strong<NSBitmapImageRep*> emptyBitmap(const QSize& pixels) {
    return Strong<NSBitmapImageRep*>::adopt([[NSBitmapImageRep alloc]
        initWithBitmapDataPlanes:nullptr
                      pixelsWide:pixels.width()
                      pixelsHigh:pixels.height()
                   bitsPerSample:8
                 samplesPerPixel:4
                        hasAlpha:YES
                        isPlanar:NO
                  colorSpaceName:NSDeviceRGBColorSpace
                     bytesPerRow:0
                    bitsPerPixel:0]);
}

QImage drawn(NSImage* image, const QSize& pixels) {
    if (image == nil || pixels.isEmpty()) {
        return {};
    }
    const auto bitmap = emptyBitmap(pixels);
    if (!bitmap || bitmap.get().bitmapData == nullptr) {
        return {};
    }
    [NSGraphicsContext saveGraphicsState];
    NSGraphicsContext.currentContext =
        [NSGraphicsContext graphicsContextWithBitmapImageRep:bitmap.get()];
    [image drawInRect:NSMakeRect(0, 0, pixels.width(), pixels.height())
             fromRect:NSZeroRect
            operation:NSCompositingOperationSourceOver
             fraction:1];
    [NSGraphicsContext.currentContext flushGraphics];
    [NSGraphicsContext restoreGraphicsState];
    // A copy, since the bitmap goes.
    return QImage(bitmap.get().bitmapData, pixels.width(), pixels.height(),
                  bitmap.get().bytesPerRow, QImage::Format_RGBA8888_Premultiplied)
        .copy();
}

} // namespace

QImage symbol(const QString& name, const SymbolStyle& style, double pixelsPerPoint) {
    @autoreleasepool {
        NSImage* image = [NSImage imageWithSystemSymbolName:toNSString(name)
                                   accessibilityDescription:nil];
        NSImage* styled = [image
            imageWithSymbolConfiguration:[NSImageSymbolConfiguration
                                             configurationWithPointSize:style.pointSize
                                                                 weight:toWeight(style.weight)]];
        const NSSize size = styled == nil ? NSMakeSize(0, 0) : styled.size;
        return drawn(styled, QSize(static_cast<int>(std::ceil(size.width * pixelsPerPoint)),
                                   static_cast<int>(std::ceil(size.height * pixelsPerPoint))));
    }
}

QImage iconOfFile(const QString& path, const QSize& pixels) {
    @autoreleasepool {
        // For a file that is not there the workspace has an icon all the same.
        if (![[NSFileManager defaultManager] fileExistsAtPath:toNSString(path)]) {
            return {};
        }
        return drawn([[NSWorkspace sharedWorkspace] iconForFile:toNSString(path)], pixels);
    }
}

} // namespace platform::nativeImages
