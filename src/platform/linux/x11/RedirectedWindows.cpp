#include "platform/linux/x11/RedirectedWindows.h"

#include "platform/linux/x11/WindowsOutOfSight.h"

#include <xcb/composite.h>
#include <xcb/shape.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <span>
#include <string_view>

namespace platform {

namespace {

/// What the four bytes of a pixel are.
struct PixelKind {
    QImage::Format format;
    /// Bits that stand for the opacity but may be anything in a window that has none.
    quint32 unused;
};

std::optional<PixelKind> pixelKind(int depth) {
    switch (depth) {
    case 24:
        return PixelKind{QImage::Format_ARGB32_Premultiplied, 0xff000000};
    case 30:
        return PixelKind{QImage::Format_A2RGB30_Premultiplied, 0xc0000000};
    case 32:
        return PixelKind{QImage::Format_ARGB32_Premultiplied, 0};
    default:
        return std::nullopt;
    }
}

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

std::optional<xcb_window_t> RedirectedWindows::topLevelOf(xcb_window_t window) {
    constexpr int deepest = 32;
    for (int depth = 0; depth < deepest && window != XCB_WINDOW_NONE; ++depth) {
        const auto tree =
            display_.reply<xcb_query_tree_reply_t>(xcb_query_tree(display_.get(), window));
        if (!tree) {
            break;
        }
        if (tree->parent == display_.root()) {
            return window;
        }
        window = tree->parent;
    }
    return std::nullopt;
}

std::vector<xcb_window_t> RedirectedWindows::below(xcb_window_t window) {
    const auto own = topLevelOf(window);
    std::set<xcb_window_t> outOfSight;
    for (const xcb_window_t client : windowsOutOfSight(display_)) {
        outOfSight.insert(topLevelOf(client).value_or(client));
    }
    const auto tree =
        display_.reply<xcb_query_tree_reply_t>(xcb_query_tree(display_.get(), display_.root()));
    std::vector<xcb_window_t> result;
    if (!tree) {
        return result;
    }
    const auto* first = xcb_query_tree_children(tree.get());
    const auto* last = first + xcb_query_tree_children_length(tree.get());
    const auto* end = own ? std::find(first, last, *own) : last;
    if (window != XCB_WINDOW_NONE && end == last) {
        // Nobody can tell what is below it.
        return result;
    }
    std::copy_if(first, end, std::back_inserter(result), [&](xcb_window_t child) {
        return !outOfSight.contains(child) && isVisible(child);
    });
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
    const auto kind = pixelKind(depth);
    QImage image(part.size(), kind ? kind->format : QImage::Format_Invalid);
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
    const std::span pixels(reinterpret_cast<quint32*>(image.bits()),
                           std::size_t(image.sizeInBytes()) / sizeof(quint32));
    for (quint32& pixel : pixels) {
        pixel |= kind->unused;
    }
    return image;
}

std::optional<RedirectedWindows::Place> RedirectedWindows::place(xcb_window_t window,
                                                                 const QRect& area) {
    const auto geometry =
        display_.reply<xcb_get_geometry_reply_t>(xcb_get_geometry(display_.get(), window));
    if (!geometry || !pixelKind(geometry->depth)) {
        return std::nullopt;
    }
    const int border = geometry->border_width;
    const QPoint corner(geometry->x, geometry->y);
    const QSize size(geometry->width + 2 * border, geometry->height + 2 * border);
    const QRect visible = QRect(corner, size) & area;
    if (visible.isEmpty()) {
        return std::nullopt;
    }
    // A shape counts from the corner inside the border, the pixmap from the one outside.
    const auto shape = shapeOf(window);
    const QPoint inside = corner + QPoint(border, border);
    return Place{window, geometry->depth, visible.translated(-corner),
                 shape ? shape->translated(inside) & visible : QRegion(visible), visible.topLeft()};
}

QImage RedirectedWindows::picture(const Place& place) {
    const xcb_pixmap_t pixmap = xcb_generate_id(display_.get());
    xcb_composite_name_window_pixmap(display_.get(), place.window, pixmap);
    QImage image = pixels(pixmap, place.part, place.depth);
    xcb_free_pixmap(display_.get(), pixmap);
    return image;
}

} // namespace platform
