#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <map>
#include <memory>
#include <string>

namespace platform {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};

/// Something that xcb allocated: a reply, an event, an error.
template <typename T>
using XcbPointer = std::unique_ptr<T, FreeMemory>;

/// One conversation with the X server, in which nobody waits forever: a server that does not answer
/// in time (because another client holds it, say) counts as one that has nothing to answer.
/// One thread at a time.
class XcbDisplay {
public:
    /// How long the server may take for one answer while the main thread waits.
    static constexpr std::chrono::milliseconds answerLimit{150};
    /// How long a server that did not answer is then not waited for at all.
    static constexpr std::chrono::milliseconds silence{1000};

    /// Null when no server answers under $DISPLAY. `limit` is how long it may take for one answer.
    static std::unique_ptr<XcbDisplay> connect(std::chrono::milliseconds limit = answerLimit);

    virtual ~XcbDisplay();
    XcbDisplay(const XcbDisplay&) = delete;
    XcbDisplay& operator=(const XcbDisplay&) = delete;

    /// Also usable with xcb's own blocking functions; events that these leave behind are not lost.
    xcb_connection_t* get() const { return connection_; }
    const xcb_screen_t& screen() const { return *screen_; }
    int screenNumber() const { return screenNumber_; }
    xcb_window_t root() const { return screen_->root; }
    bool isAlive() const { return xcb_connection_has_error(connection_) == 0; }

    /// False after the server failed to answer in time, for as long as it is not asked again.
    bool isAnswering() const { return std::chrono::steady_clock::now() >= silentUntil_; }

    /// The atom of that name, asked of the server once. XCB_ATOM_NONE when it does not answer.
    xcb_atom_t atom(const char* name);

    /// Sends what is still buffered and waits for the answer to one request. Null when the server
    /// answers with an error or not in time.
    template <typename Reply, typename Cookie>
    XcbPointer<Reply> reply(Cookie cookie) {
        return XcbPointer<Reply>(static_cast<Reply*>(awaitReply(cookie.sequence)));
    }

protected:
    XcbDisplay(xcb_connection_t* connection, int screenNumber, xcb_screen_t* screen,
               std::chrono::milliseconds limit = answerLimit);

    /// The next event that has arrived; null when there is none.
    XcbPointer<xcb_generic_event_t> nextEvent();

    /// Read, but not handed out yet.
    const std::deque<XcbPointer<xcb_generic_event_t>>& arrivedEvents() const { return arrived_; }

    struct Opened {
        xcb_connection_t* connection = nullptr;
        int screenNumber = 0;
        xcb_screen_t* screen = nullptr;
    };
    static Opened openConnection();

private:
    void* awaitReply(unsigned int sequence);
    void* giveUp(unsigned int sequence);

    xcb_connection_t* connection_;
    int screenNumber_;
    xcb_screen_t* screen_;
    std::chrono::milliseconds limit_;
    std::map<std::string, xcb_atom_t, std::less<>> atoms_;
    /// Until then nobody waits again for a server that did not answer in time.
    std::chrono::steady_clock::time_point silentUntil_;
    /// Events that arrived while an answer was awaited.
    std::deque<XcbPointer<xcb_generic_event_t>> arrived_;
};

} // namespace platform
