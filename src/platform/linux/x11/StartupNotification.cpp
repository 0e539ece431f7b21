#include "platform/linux/x11/StartupNotification.h"

#include <algorithm>

namespace platform {

std::optional<xcb_timestamp_t> startupTime(const QString& startupId) {
    const QString mark = QStringLiteral("_TIME");
    const auto found = startupId.lastIndexOf(mark);
    if (found < 0) {
        return std::nullopt;
    }
    bool isNumber = false;
    const auto time = startupId.mid(found + mark.size()).toUInt(&isNumber);
    // 0 means that the launcher did not know either.
    return isNumber && time != XCB_CURRENT_TIME ? std::optional(time) : std::nullopt;
}

QByteArray startupCompletedMessage(const QString& startupId) {
    QByteArray quoted;
    for (const char byte : startupId.toUtf8()) {
        if (byte == '"' || byte == '\\') {
            quoted.append('\\');
        }
        quoted.append(byte);
    }
    return "remove: ID=\"" + quoted + '"';
}

void sendStartupCompleted(XcbConnection& connection, xcb_window_t window,
                          const QString& startupId) {
    // In pieces of twenty bytes, the last one filled up with zeros of which the first ends the
    // text.
    const QByteArray text = startupCompletedMessage(startupId) + '\0';
    xcb_client_message_event_t piece{};
    piece.response_type = XCB_CLIENT_MESSAGE;
    piece.format = 8;
    piece.window = window;
    piece.type = connection.atom("_NET_STARTUP_INFO_BEGIN");
    constexpr qsizetype pieceLength = sizeof piece.data.data8;
    for (qsizetype start = 0; start < text.size(); start += pieceLength) {
        const QByteArray bytes = text.mid(start, pieceLength).leftJustified(pieceLength, '\0');
        std::copy(bytes.begin(), bytes.end(), piece.data.data8);
        xcb_send_event(connection.get(), 0, connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&piece));
        piece.type = connection.atom("_NET_STARTUP_INFO");
    }
    xcb_flush(connection.get());
}

} // namespace platform
