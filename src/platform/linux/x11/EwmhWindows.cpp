#include "platform/linux/x11/EwmhWindows.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>
#include <utility>
#include <vector>

namespace platform {

namespace {

/// The toolkit keeps a screen's corner in pixels and divides its size alone.
PixelRect pixelFrame(const QScreen& screen) {
    const QRect points = screen.geometry();
    const double ratio = screen.devicePixelRatio();
    return {points.x(), points.y(), static_cast<int>(std::lround(points.width() * ratio)),
            static_cast<int>(std::lround(points.height() * ratio))};
}

} // namespace

EwmhWindows::EwmhWindows(std::shared_ptr<XcbConnection> connection)
    : connection_(std::move(connection))
    , properties_(*connection_)
    , activeWindow_(*connection_)
    , workAreas_(*connection_) {}

std::optional<WindowPlace> EwmhWindows::placeOfActiveWindow(ProcessIdentifier process) {
    // The last one counts as well: asked of a process that just lost the keyboard, its window is
    // still where the text was.
    activeWindow_.current();
    const auto window = activeWindow_.lastOf(process);
    const auto surface = window ? properties_.clientArea(*window) : std::nullopt;
    return surface
               ? std::optional(WindowPlace{*surface, properties_.withoutShadow(*window, *surface)})
               : std::nullopt;
}

PixelGeometry EwmhWindows::pixelGeometry() {
    std::vector<PixelScreen> screens;
    std::vector<PixelRect> frames;
    for (const auto* screen : QGuiApplication::screens()) {
        const PixelRect frame = pixelFrame(*screen);
        // The toolkit keeps an empty placeholder when the last screen is gone.
        if (frame.isEmpty()) {
            continue;
        }
        frames.push_back(frame);
        screens.push_back(
            {frame, frame, screen->devicePixelRatio(), screen == QGuiApplication::primaryScreen()});
    }
    const auto visible = workAreas_.visibleFrames(frames);
    for (std::size_t index = 0; index < screens.size(); ++index) {
        screens[index].visibleFrame = visible[index];
    }
    return PixelGeometry(std::move(screens));
}

} // namespace platform
