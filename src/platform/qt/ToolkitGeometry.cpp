#include "platform/qt/ToolkitGeometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <limits>

namespace platform {

namespace {

QRect primaryFrame() {
    const auto* primary = QGuiApplication::primaryScreen();
    return primary == nullptr ? QRect() : primary->geometry();
}

/// X counts pixels in 16 bits. A number is brought into the part of that range that leaves room
/// for a window's size at the largest ratio of all screens.
int wholePoint(double number) {
    constexpr double farthestPixel = 30000;
    const double farthest = farthestPixel / std::max(1.0, qGuiApp->devicePixelRatio());
    return std::isnan(number)
               ? 0
               : static_cast<int>(std::lround(std::clamp(number, -farthest, farthest)));
}

/// In gaps between screens, which points have and pixels do not, the toolkit would scale like the
/// screen on which the window was last.
QScreen* nearestScreen(const QPoint& point) {
    QScreen* best = nullptr;
    int bestDistance = std::numeric_limits<int>::max();
    for (auto* screen : QGuiApplication::screens()) {
        const QRect frame = screen->geometry();
        const QPoint inside(
            std::clamp(point.x(), frame.left(), std::max(frame.left(), frame.right())),
            std::clamp(point.y(), frame.top(), std::max(frame.top(), frame.bottom())));
        const int distance = (point - inside).manhattanLength();
        if (distance < bestDistance) {
            best = screen;
            bestDistance = distance;
        }
    }
    return best;
}

} // namespace

Rect fromToolkit(const QRect& frame) {
    const QRect primary = primaryFrame();
    return {double(frame.x() - primary.x()),
            double(primary.y() + primary.height() - frame.y() - frame.height()),
            double(frame.width()), double(frame.height())};
}

QRect toToolkit(const Rect& frame) {
    const QRect primary = primaryFrame();
    const int width = std::max(1, wholePoint(frame.width));
    const int height = std::max(1, wholePoint(frame.height));
    // Rounded once, as a whole: the same distance from a selection at every height.
    const double top = primary.y() + primary.height() - frame.y - frame.height;
    return {wholePoint(frame.x + primary.x()), wholePoint(top), width, height};
}

Rect frameOnScreen(const QWidget& part) {
    return fromToolkit(QRect(part.mapToGlobal(QPoint(0, 0)), part.size()));
}

void setToolkitFrame(QWidget& window, const Rect& frame) {
    const QRect geometry = toToolkit(frame);
    auto* screen = nearestScreen(geometry.center());
    if (screen != nullptr && screen != window.screen()) {
        window.setScreen(screen);
    }
    window.setGeometry(geometry);
}

} // namespace platform
