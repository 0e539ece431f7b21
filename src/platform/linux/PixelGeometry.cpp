#include "platform/linux/PixelGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace platform {

namespace {

/// X sends positions as signed 16-bit numbers.
constexpr double farthest = 32767;

double ratioOf(const PixelScreen& screen) {
    return screen.devicePixelRatio > 0 ? screen.devicePixelRatio : 1;
}

/// The square of the distance between a point and a rectangle; 0 inside it.
double distance(const Rect& rect, double x, double y) {
    const double dx = std::max({rect.minX() - x, 0.0, x - rect.maxX()});
    const double dy = std::max({rect.minY() - y, 0.0, y - rect.maxY()});
    return dx * dx + dy * dy;
}

Rect pixelFrame(const PixelScreen& screen) {
    return {double(screen.frame.x), double(screen.frame.y), double(screen.frame.width),
            double(screen.frame.height)};
}

/// The screen's frame where the toolkit has it: same corner, size in points.
Rect pointFrame(const PixelScreen& screen) {
    return {double(screen.frame.x), double(screen.frame.y), screen.frame.width / ratioOf(screen),
            screen.frame.height / ratioOf(screen)};
}

/// Half-open, so that the first pixel of a screen is not taken for the last of its neighbour.
bool holds(const Rect& rect, double x, double y) {
    return x >= rect.minX() && x < rect.maxX() && y >= rect.minY() && y < rect.maxY();
}

template <typename Frame>
const PixelScreen* nearest(const std::vector<PixelScreen>& screens, Frame frame, double x,
                           double y) {
    const PixelScreen* best = nullptr;
    double bestDistance = std::numeric_limits<double>::infinity();
    for (const auto& screen : screens) {
        if (holds(frame(screen), x, y)) {
            return &screen;
        }
        const double candidate = distance(frame(screen), x, y);
        if (candidate < bestDistance) {
            best = &screen;
            bestDistance = candidate;
        }
    }
    return best;
}

double sane(double number) {
    return std::isnan(number) ? 0 : std::clamp(number, -farthest, farthest);
}

int wholePixel(double number) {
    return static_cast<int>(std::lround(sane(number)));
}

} // namespace

PixelGeometry::PixelGeometry(std::vector<PixelScreen> screens)
    : screens_(std::move(screens)) {}

const PixelScreen* PixelGeometry::primaryScreen() const {
    const auto marked = std::find_if(screens_.begin(), screens_.end(),
                                     [](const PixelScreen& screen) { return screen.primary; });
    if (marked != screens_.end()) {
        return &*marked;
    }
    return screens_.empty() ? nullptr : &screens_.front();
}

const PixelScreen* PixelGeometry::screenNearest(PixelPoint pixel) const {
    return nearest(screens_, pixelFrame, pixel.x, pixel.y);
}

Rect PixelGeometry::topLeftPoints(const PixelRect& pixels) const {
    const auto* screen = nearest(screens_, pixelFrame, pixels.x + pixels.width / 2.0,
                                 pixels.y + pixels.height / 2.0);
    if (screen == nullptr) {
        return {double(pixels.x), double(pixels.y), double(pixels.width), double(pixels.height)};
    }
    return topLeftPoints(pixels, *screen);
}

Rect PixelGeometry::topLeftPoints(const PixelRect& pixels, const PixelScreen& screen) const {
    const double ratio = ratioOf(screen);
    const auto& corner = screen.frame;
    const auto& origin = primaryScreen()->frame;
    return {corner.x - origin.x + (double(pixels.x) - corner.x) / ratio,
            corner.y - origin.y + (double(pixels.y) - corner.y) / ratio, pixels.width / ratio,
            pixels.height / ratio};
}

Rect PixelGeometry::flipped(const Rect& topLeft) const {
    const auto* primary = primaryScreen();
    const double height = primary == nullptr ? 0 : pointFrame(*primary).height;
    return {topLeft.x, height - topLeft.y - topLeft.height, topLeft.width, topLeft.height};
}

Rect PixelGeometry::globalPoints(const PixelRect& pixels) const {
    return flipped(topLeftPoints(pixels));
}

Rect PixelGeometry::globalPoints(const PixelRect& pixels, const PixelScreen& screen) const {
    return flipped(topLeftPoints(pixels, screen));
}

Point PixelGeometry::globalPoint(PixelPoint pixel) const {
    const Rect point = globalPoints({pixel.x, pixel.y, 0, 0});
    return {point.x, point.y};
}

PixelRect PixelGeometry::pixels(const Rect& global) const {
    const Rect clean{sane(global.x), sane(global.y), std::max(0.0, sane(global.width)),
                     std::max(0.0, sane(global.height))};
    Rect topLeft = flipped(clean);
    double ratio = 1;
    if (const auto* primary = primaryScreen()) {
        // Now in the toolkit's coordinates, in which every screen has its own corner.
        topLeft.x += primary->frame.x;
        topLeft.y += primary->frame.y;
        const auto* screen = nearest(screens_, pointFrame, topLeft.x + topLeft.width / 2,
                                     topLeft.y + topLeft.height / 2);
        ratio = ratioOf(*screen);
        topLeft.x = screen->frame.x + (topLeft.x - screen->frame.x) * ratio;
        topLeft.y = screen->frame.y + (topLeft.y - screen->frame.y) * ratio;
    }
    return {wholePixel(topLeft.x), wholePixel(topLeft.y), wholePixel(topLeft.width * ratio),
            wholePixel(topLeft.height * ratio)};
}

} // namespace platform
