#include "macos/fakes/c/ImagesFake.h"

#include <limits>

namespace {

using appleFake::checked;
using appleFake::images;
using appleFake::made;
using appleFake::Object;

struct ImageObject final : Object {
    ImageObject(std::size_t w, std::vector<std::array<unsigned char, 4>> p)
        : Object(appleFake::Image)
        , width(w)
        , pixels(std::move(p)) {}
    std::size_t width;
    std::vector<std::array<unsigned char, 4>> pixels;
};

struct ContextObject final : Object {
    ContextObject(unsigned char* d, std::size_t w, std::size_t h, std::size_t b)
        : Object(appleFake::Context)
        , data(d)
        , width(w)
        , height(h)
        , bytesPerRow(b) {}
    unsigned char* data;
    std::size_t width;
    std::size_t height;
    std::size_t bytesPerRow;
};

ImageObject& image(CGImageRef reference, const char* caller) {
    return checked<ImageObject>(reference, appleFake::Image, caller);
}

} // namespace

appleFake::Images& appleFake::images() {
    static Images instance;
    return instance;
}

constexpr CGFloat infinity = std::numeric_limits<CGFloat>::infinity();
const CGRect CGRectNull{{infinity, infinity}, {0, 0}};
const CFStringRef kCGColorSpaceSRGB = CFSTR("kCGColorSpaceSRGB");

/// Not declared: looked up by its name.
extern "C" CGImageRef CGWindowListCreateImage(CGRect bounds, std::uint32_t listOption,
                                              std::uint32_t window, std::uint32_t imageOption);

CGImageRef CGWindowListCreateImage(CGRect bounds, std::uint32_t listOption, std::uint32_t window,
                                   std::uint32_t imageOption) {
    images().captures.push_back({bounds, listOption, window, imageOption});
    return images().pixels.empty()
               ? nullptr
               : made<CGImageRef>(new ImageObject(images().width, images().pixels));
}

std::size_t CGImageGetWidth(CGImageRef reference) {
    return image(reference, "CGImageGetWidth").width;
}

std::size_t CGImageGetHeight(CGImageRef reference) {
    const ImageObject& object = image(reference, "CGImageGetHeight");
    return object.pixels.size() / object.width;
}

CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef name) {
    return name == kCGColorSpaceSRGB ? made<CGColorSpaceRef>(new Object(appleFake::ColorSpace))
                                     : nullptr;
}

CGContextRef CGBitmapContextCreate(void* data, std::size_t width, std::size_t height,
                                   std::size_t bitsPerComponent, std::size_t bytesPerRow,
                                   CGColorSpaceRef space, std::uint32_t bitmapInfo) {
    checked<Object>(space, appleFake::ColorSpace, "CGBitmapContextCreate");
    const bool isKnown =
        bitsPerComponent == 8 && bytesPerRow >= 4 * width && bitmapInfo == (2U | (2U << 12U));
    return isKnown && images().contextCanBeMade
               ? made<CGContextRef>(new ContextObject(static_cast<unsigned char*>(data), width,
                                                      height, bytesPerRow))
               : nullptr;
}

void CGContextDrawImage(CGContextRef reference, CGRect rect, CGImageRef source) {
    const auto& context =
        checked<ContextObject>(reference, appleFake::Context, "CGContextDrawImage");
    const ImageObject& drawn = image(source, "CGContextDrawImage");
    if (rect.origin.x != 0 || rect.origin.y != 0 ||
        rect.size.width != static_cast<CGFloat>(drawn.width) || context.width != drawn.width ||
        context.height * context.width != drawn.pixels.size()) {
        appleFake::crash("CGContextDrawImage", "a picture that is moved or scaled");
    }
    for (std::size_t i = 0; i < drawn.pixels.size(); ++i) {
        unsigned char* row = context.data + i / drawn.width * context.bytesPerRow;
        std::copy(drawn.pixels[i].begin(), drawn.pixels[i].end(), row + i % drawn.width * 4);
    }
}
