#include "platform/linux/x11/XCompositeScreenCapture.h"

#include "platform/linux/x11/RedirectedWindows.h"

#include <QGuiApplication>
#include <QPainter>
#include <QWindow>

#include <thread>

namespace platform {

namespace {

/// Nobody waits for the picture in person, and a busy server may need a moment for large windows.
constexpr std::chrono::milliseconds patience{1000};

/// How long applications have to draw what other windows had covered.
constexpr std::chrono::milliseconds repainting{100};

/// One window's picture after the other, so that no more than one of them is held at once.
QImage putTogether(RedirectedWindows& windows,
                   const std::vector<RedirectedWindows::Place>& places) {
    QRegion covered;
    for (const auto& place : places) {
        covered += place.shape;
    }
    const QPoint corner = covered.boundingRect().topLeft();
    QImage whole(covered.boundingRect().size(), QImage::Format_ARGB32_Premultiplied);
    if (whole.isNull()) {
        return {};
    }
    whole.fill(Qt::transparent);
    QPainter painter(&whole);
    painter.translate(-corner);
    for (const auto& place : places) {
        painter.setClipRegion(place.shape);
        painter.drawImage(place.corner, windows.picture(place));
    }
    return whole;
}

} // namespace

std::int64_t XCompositeScreenCapture::keyWindowNumber() {
    const QWindow* window = QGuiApplication::focusWindow();
    return window == nullptr ? 0 : static_cast<std::int64_t>(window->winId());
}

QImage XCompositeScreenCapture::pictureBelow(std::uint32_t window) {
    const auto display = XcbDisplay::connect(patience);
    if (!display) {
        return {};
    }
    const auto windows = RedirectedWindows::of(*display);
    if (!windows) {
        return {};
    }
    // The answer means that the redirection has happened.
    display->reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(display->get()));
    std::this_thread::sleep_for(repainting);

    const auto screen =
        display->reply<xcb_get_geometry_reply_t>(xcb_get_geometry(display->get(), display->root()));
    if (!screen) {
        return {};
    }
    const QRect area(0, 0, screen->width, screen->height);
    std::vector<RedirectedWindows::Place> places;
    for (const xcb_window_t each : windows->below(window)) {
        if (auto place = windows->place(each, area)) {
            places.push_back(*std::move(place));
        }
    }
    const QImage picture = putTogether(*windows, places);
    // Part of what is on the screen would tell something wrong.
    return display->isAnswering() ? picture : QImage();
}

} // namespace platform
