#include "macos/fakes/cocoa/Objects.hh"
#include "macos/fakes/cocoa/ServicesFake.h"

#include <AppKit/AppKit.h>

#include <cstring>

using cocoaFake::services;
using cocoaFake::stateOf;

namespace {

struct Bitmap {
    QSize size;
    std::vector<unsigned char> bytes;
};

struct Image {
    NSSize size{};
};

NSBitmapImageRep* current = nil;
int savedStates = 0;

/// Rows are longer than their pixels, as they may be.
constexpr int padding = 12;

int bytesPerRow(const Bitmap& bitmap) {
    return bitmap.size.width() * 4 + padding;
}

} // namespace

const CGFloat NSFontWeightRegular = 0;
const CGFloat NSFontWeightMedium = 0.23;
const CGFloat NSFontWeightSemibold = 0.3;
const CGFloat NSFontWeightBold = 0.4;
NSString* NSDeviceRGBColorSpace = @"NSDeviceRGBColorSpace";

@implementation NSImageRep
@end

@implementation NSBitmapImageRep
COUNTED(Bitmap)
- (id)initWithBitmapDataPlanes:(unsigned char**)planes
                    pixelsWide:(NSInteger)width
                    pixelsHigh:(NSInteger)height
                 bitsPerSample:(NSInteger)bitsPerSample
               samplesPerPixel:(NSInteger)samplesPerPixel
                      hasAlpha:(BOOL)alpha
                      isPlanar:(BOOL)planar
                colorSpaceName:(NSString*)space
                   bytesPerRow:(NSInteger)bytes
                  bitsPerPixel:(NSInteger)bits {
    self = [self init];
    const bool asExpected = planes == nullptr && bitsPerSample == 8 && samplesPerPixel == 4 &&
                            alpha && !planar && bytes == 0 && bits == 0 &&
                            [space isEqualToString:NSDeviceRGBColorSpace];
    if (asExpected) {
        Bitmap& bitmap = stateOf<Bitmap>(self);
        bitmap.size = {static_cast<int>(width), static_cast<int>(height)};
        bitmap.bytes.resize(static_cast<std::size_t>(bytesPerRow(bitmap) * bitmap.size.height()));
    }
    return self;
}
- (unsigned char*)bitmapData {
    return stateOf<Bitmap>(self).bytes.empty() ? nullptr : stateOf<Bitmap>(self).bytes.data();
}
- (NSInteger)bytesPerRow {
    return bytesPerRow(stateOf<Bitmap>(self));
}
@end

@implementation NSGraphicsContext
+ (NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)bitmap {
    current = bitmap;
    static NSGraphicsContext* const shared = [[NSGraphicsContext alloc] init];
    return shared;
}
+ (NSGraphicsContext*)currentContext {
    return [NSGraphicsContext graphicsContextWithBitmapImageRep:current];
}
+ (void)setCurrentContext:(NSGraphicsContext*)context {
    if (savedStates == 0 || context == nil) {
        std::abort(); // whatever was drawn to before would be lost
    }
}
+ (void)saveGraphicsState {
    ++savedStates;
}
+ (void)restoreGraphicsState {
    --savedStates;
    current = nil;
}
- (void)flushGraphics {
}
@end

@implementation NSImageSymbolConfiguration
+ (id)configurationWithPointSize:(CGFloat)pointSize weight:(CGFloat)weight {
    services().configurations.emplace_back(pointSize, weight);
    return [[[NSImageSymbolConfiguration alloc] init] autorelease];
}
@end

@implementation NSImage
COUNTED(Image)
+ (id)imageWithSystemSymbolName:(NSString*)name accessibilityDescription:(NSString*)description {
    const auto known = services().symbols.find(platform::toQString(name));
    if (known == services().symbols.end() || description != nil) {
        return nil;
    }
    NSImage* const image = [[[NSImage alloc] init] autorelease];
    image.size = NSMakeSize(known->second.width(), known->second.height());
    return image;
}
- (NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration {
    NSImage* const image = [[[NSImage alloc] init] autorelease];
    const double pointSize = services().configurations.back().first;
    image.size = configuration == nil
                     ? NSMakeSize(0, 0)
                     : NSMakeSize(self.size.width * pointSize, self.size.height * pointSize);
    return image;
}
ANSWERS(NSSize, size, Image, size)
RECORDS(setSize, NSSize, Image, size)
- (void)drawInRect:(NSRect)target
          fromRect:(NSRect)source
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)fraction {
    Bitmap& bitmap = stateOf<Bitmap>(current);
    const bool whole =
        NSEqualRects(source, NSZeroRect) && fraction == 1 &&
        operation == NSCompositingOperationSourceOver &&
        NSEqualRects(target, NSMakeRect(0, 0, bitmap.size.width(), bitmap.size.height()));
    const QColor ink = services().ink;
    for (int y = 0; whole && y < bitmap.size.height(); ++y) {
        for (int x = 0; x < bitmap.size.width(); ++x) {
            unsigned char* const pixel = bitmap.bytes.data() + y * bytesPerRow(bitmap) + x * 4;
            // The left half only, so that a picture the wrong way round shows.
            const int alpha = x * 2 < bitmap.size.width() ? ink.alpha() : 0;
            pixel[0] = static_cast<unsigned char>(ink.red() * alpha / 255);
            pixel[1] = static_cast<unsigned char>(ink.green() * alpha / 255);
            pixel[2] = static_cast<unsigned char>(ink.blue() * alpha / 255);
            pixel[3] = static_cast<unsigned char>(alpha);
        }
    }
}
@end

@implementation NSWorkspace (Icons)
- (NSImage*)iconForFile:(NSString*)path {
    services().iconsAsked += path.length > 0 ? 1 : 0;
    NSImage* const image = [[[NSImage alloc] init] autorelease];
    image.size = NSMakeSize(32, 32);
    return image;
}
@end
