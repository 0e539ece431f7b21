#include "platform/linux/x11/RedirectedWindows.h"

#include <xcb/composite.h>
#include <xcb/shape.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace platform {

namespace {

bool isPresent(XcbDisplay& display, std::string_view extension) {
    const auto answer = display.reply<xcb_query_extension_reply_t>(xcb_query_extension(
        display.get(), static_cast<std::uint16_t>(extension.size()), extension.data()));
    return answer && answer->present != 0;
}

} // namespace

std::unique_ptr<RedirectedWindows> RedirectedWindows::of(XcbDisplay& display) {
    if (!isPresent(display, "Composite")) {
        return nullptr;
    }
    // Naming pixmaps came with 0.2.
    const auto version = display.reply<xcb_composite_query_version_reply_t>(
        xcb_composite_query_version(display.get(), 0, 4));
    if (!version || (version->major_version == 0 && version->minor_version < 2)) {
        return nullptr;
    }
    return std::unique_ptr<RedirectedWindows>(new RedirectedWindows(display));
}

RedirectedWindows::RedirectedWindows(XcbDisplay& display)
    : display_(display)
    , hasShapes_(isPresent(display, "SHAPE")) {
    xcb_composite_redirect_subwindows(display_.get(), display_.root(),
                                      XCB_COMPOSITE_REDIRECT_AUTOMATIC);
}

RedirectedWindows::~RedirectedWindows() {
    xcb_composite_unredirect_subwindows(display_.get(), display_.root(),
                                        XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    xcb_flush(display_.get());
}

bool RedirectedWindows::isVisible(xcb_window_t window) {
    const auto attributes = display_.reply<xcb_get_window_attributes_reply_t>(
        xcb_get_window_attributes(display_.get(), window));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
           attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
}

xcb_window_t RedirectedWindows::topLevelOf(xcb_window_t window) {
    constexpr int deepest = 32;
    for (int depth = 0; depth < deepest && window != XCB_WINDOW_NONE; ++depth) {
        const auto tree =
            display_.reply<xcb_query_tree_reply_t>(xcb_query_tree(display_.get(), window));
        if (!tree || tree->parent == display_.root()) {
            break;
        }
        window = tree->parent;
    }
    return window;
}

std::vector<xcb_window_t> RedirectedWindows::below(xcb_window_t window) {
    const xcb_window_t end = topLevelOf(window);
    const auto tree =
        display_.reply<xcb_query_tree_reply_t>(xcb_query_tree(display_.get(), display_.root()));
    std::vector<xcb_window_t> result;
    if (!tree) {
        return result;
    }
    const auto* first = xcb_query_tree_children(tree.get());
    const auto* last = first + xcb_query_tree_children_length(tree.get());
    std::copy_if(first, std::find(first, last, end), std::back_inserter(result),
                 [this](xcb_window_t child) { return isVisible(child); });
    return result;
}

std::optional<QRegion> RedirectedWindows::shapeOf(xcb_window_t window) {
    if (!hasShapes_) {
        return std::nullopt;
    }
    const auto rectangles = display_.reply<xcb_shape_get_rectangles_reply_t>(
        xcb_shape_get_rectangles(display_.get(), window, XCB_SHAPE_SK_BOUNDING));
    if (!rectangles) {
        return std::nullopt;
    }
    QRegion region;
    const auto* list = xcb_shape_get_rectangles_rectangles(rectangles.get());
    for (int i = 0; i < xcb_shape_get_rectangles_rectangles_length(rectangles.get()); ++i) {
        region += QRect(list[i].x, list[i].y, list[i].width, list[i].height);
    }
    return region;
}

QImage RedirectedWindows::pixels(xcb_pixmap_t pixmap, const QRect& part, int depth) {
    // In strips, so that no single answer is so large that it takes the server long.
    constexpr int stripHeight = 128;
    QImage image(part.size(),
                 depth == 32 ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull()) {
        return {};
    }
    for (int y = 0; y < part.height(); y += stripHeight) {
        const int height = std::min(stripHeight, part.height() - y);
        const auto strip = display_.reply<xcb_get_image_reply_t>(xcb_get_image(
            display_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, static_cast<std::int16_t>(part.x()),
            static_cast<std::int16_t>(part.y() + y), static_cast<std::uint16_t>(part.width()),
            static_cast<std::uint16_t>(height), ~0U));
        const std::size_t wanted = std::size_t(part.width()) * std::size_t(height) * 4;
        if (!strip || std::size_t(xcb_get_image_data_length(strip.get())) != wanted) {
            return {};
        }
        // Both have four bytes a pixel and no padding at the end of a line.
        std::memcpy(image.scanLine(y), xcb_get_image_data(strip.get()), wanted);
    }
    if (depth != 32) {
        // The fourth byte means nothing there and may be anything.
        image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return image;
}

std::optional<RedirectedWindows::Picture> RedirectedWindows::picture(xcb_window_t window,
                                                                     const QRect& area) {
    auto* connection = display_.get();
    const auto geometry =
        display_.reply<xcb_get_geometry_reply_t>(xcb_get_geometry(connection, window));
    if (!geometry || (geometry->depth != 24 && geometry->depth != 32)) {
        return std::nullopt;
    }
    const QPoint corner(geometry->x, geometry->y);
    const QSize size(geometry->width + 2 * geometry->border_width,
                     geometry->height + 2 * geometry->border_width);
    const QRect visible = QRect(corner, size) & area;
    if (visible.isEmpty()) {
        return std::nullopt;
    }
    const xcb_pixmap_t pixmap = xcb_generate_id(connection);
    xcb_composite_name_window_pixmap(connection, window, pixmap);
    const QRect part = visible.translated(-corner);
    QImage image = pixels(pixmap, part, geometry->depth);
    xcb_free_pixmap(connection, pixmap);
    if (image.isNull()) {
        return std::nullopt;
    }
    // A shape counts from the corner inside the border, the pixmap from the one outside.
    const int border = geometry->border_width;
    const auto shape = shapeOf(window);
    const QRegion kept = shape ? shape->translated(border, border) & part : QRegion(part);
    return Picture{visible.topLeft(), std::move(image), kept.translated(-part.topLeft())};
}

} // namespace platform
