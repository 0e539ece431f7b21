#include "platform/linux/atspi/BoundsReader.h"

#include "platform/linux/atspi/WireTypes.h"

#include <algorithm>

namespace platform {

namespace {

/// Toolkits go through a range character by character, so that a whole book takes seconds. Of a
/// longer span, pieces are asked for: its beginning, its end and some between.
constexpr int longestPiece = 512;
constexpr int piecesOfALongSpan = 9;
constexpr int lengthOfAPiece = 48;
constexpr std::size_t mostPieces = 64;

std::vector<TextSpan> piecesOf(const std::vector<TextSpan>& spans) {
    std::vector<TextSpan> pieces;
    for (const auto& span : spans) {
        const int length = span.end - span.start;
        if (length <= longestPiece) {
            pieces.push_back(span);
            continue;
        }
        for (int index = 0; index < piecesOfALongSpan; ++index) {
            const auto offset = static_cast<std::int64_t>(length - lengthOfAPiece) * index /
                                (piecesOfALongSpan - 1);
            const int start = span.start + static_cast<int>(offset);
            pieces.push_back({span.object, start, start + lengthOfAPiece});
        }
    }
    if (pieces.size() <= mostPieces) {
        return pieces;
    }
    std::vector<TextSpan> some;
    for (std::size_t index = 0; index < mostPieces; ++index) {
        some.push_back(pieces[index * (pieces.size() - 1) / (mostPieces - 1)]);
    }
    return some;
}

std::vector<Request> rangesOnScreen(const std::vector<TextSpan>& pieces) {
    std::vector<Request> questions;
    questions.reserve(pieces.size());
    for (const auto& piece : pieces) {
        questions.push_back(
            requests::rangeExtents(piece.object, piece.start, piece.end, Coordinates::Screen));
    }
    return questions;
}

/// GTK 4 is right about the height of a range, and about its width where it begins and ends only:
/// characters tell the rest.
std::vector<Request> rangesInWindow(const std::vector<TextSpan>& pieces) {
    constexpr int charactersOfAll = 32;
    const int steps = std::max(1, charactersOfAll / static_cast<int>(pieces.size()) - 1);
    std::vector<Request> questions;
    for (const auto& piece : pieces) {
        questions.push_back(
            requests::rangeExtents(piece.object, piece.start, piece.end, Coordinates::Window));
        const int last = piece.end - 1 - piece.start;
        int asked = -1;
        for (int step = 0; step <= steps; ++step) {
            const int offset = last * step / steps;
            if (offset > asked) {
                questions.push_back(requests::characterExtents(piece.object, piece.start + offset,
                                                               Coordinates::Window));
                asked = offset;
            }
        }
    }
    return questions;
}

bool isAnswer(const QDBusMessage& reply) {
    return reply.type() == QDBusMessage::ReplyMessage;
}

/// Text that is nowhere is answered with 0, 0, 0, 0 or -1, -1, 0, 0.
bool isSomewhere(const Extents& extents) {
    return extents.isPlausible() && extents.height > 0;
}

PixelRect united(const PixelRect& a, const PixelRect& b) {
    const int x = std::min(a.x, b.x);
    const int y = std::min(a.y, b.y);
    return {x, y, std::max(a.x + a.width, b.x + b.width) - x,
            std::max(a.y + a.height, b.y + b.height) - y};
}

/// Empty when nothing is common; a width of zero, as a caret has, is kept.
std::optional<PixelRect> common(const PixelRect& a, const PixelRect& b) {
    const int x = std::max(a.x, b.x);
    const int y = std::max(a.y, b.y);
    const int right = std::min(a.x + a.width, b.x + b.width);
    const int bottom = std::min(a.y + a.height, b.y + b.height);
    if (right < x || bottom <= y) {
        return std::nullopt;
    }
    return PixelRect{x, y, right - x, bottom - y};
}

} // namespace

std::optional<PixelRect> BoundsReader::read(const std::vector<TextSpan>& spans,
                                            ProcessIdentifier process) {
    if (spans.empty()) {
        return std::nullopt;
    }
    const auto pieces = piecesOf(spans);
    auto relativeTo = Coordinates::Screen;
    auto replies = inquiry_.askAll(rangesOnScreen(pieces));
    if (std::none_of(replies.begin(), replies.end(), isAnswer)) {
        relativeTo = Coordinates::Window;
        replies = inquiry_.askAll(rangesInWindow(pieces));
    }
    const auto said = unitedExtents(replies);
    const auto window = said ? windows_.placeOfActiveWindow(process) : std::nullopt;
    if (!window) {
        // Where a window is that nobody knows, only the screen's own coordinates tell.
        return said && relativeTo == Coordinates::Screen ? onScreens(*said) : std::nullopt;
    }
    const auto inWindow =
        common(coordinates_.toPixels(*said, relativeTo, spans.front().object, *window, inquiry_),
               window->surface);
    return inWindow ? onScreens(*inWindow) : std::nullopt;
}

std::optional<PixelRect> BoundsReader::onScreens(const PixelRect& bounds) {
    const auto geometry = windows_.pixelGeometry();
    if (geometry.screens().empty()) {
        return bounds;
    }
    std::optional<PixelRect> visible;
    for (const auto& screen : geometry.screens()) {
        if (const auto part = common(bounds, screen.frame)) {
            visible = visible ? united(*visible, *part) : *part;
        }
    }
    return visible;
}

std::optional<PixelRect> BoundsReader::unitedExtents(const std::vector<QDBusMessage>& replies) {
    std::optional<PixelRect> whole;
    for (const auto& reply : replies) {
        const auto x = Inquiry::decode<int>(reply, 0);
        const auto y = Inquiry::decode<int>(reply, 1);
        const auto width = Inquiry::decode<int>(reply, 2);
        const auto height = Inquiry::decode<int>(reply, 3);
        if (!x || !y || !width || !height) {
            continue;
        }
        const Extents extents{*x, *y, *width, *height};
        if (isSomewhere(extents)) {
            const PixelRect rect{extents.x, extents.y, extents.width, extents.height};
            whole = whole ? united(*whole, rect) : rect;
        }
    }
    return whole;
}

} // namespace platform
