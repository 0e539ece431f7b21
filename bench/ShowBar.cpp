// How long the bar takes from being asked for until the X server has mapped its window, which an
// independent connection to the server says.

#include "bar/FormattingBarController.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QElapsedTimer>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
using Event = std::unique_ptr<xcb_generic_event_t, FreeMemory>;

/// Sees windows come and go on the screen.
class Witness {
public:
    Witness()
        : server_(xcb_connect(nullptr, nullptr)) {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server_)).data->root;
        constexpr std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(server_, root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(server_);
    }
    ~Witness() { xcb_disconnect(server_); }
    Witness(const Witness&) = delete;
    Witness& operator=(const Witness&) = delete;

    bool sees(std::uint8_t type) {
        while (const Event event{xcb_poll_for_event(server_)}) {
            if ((event->response_type & 0x7f) == type) {
                return true;
            }
        }
        return false;
    }

    /// Milliseconds since `timer` was started until such an event came; five seconds at most.
    double waitFor(std::uint8_t type, const QElapsedTimer& timer) {
        while (!sees(type)) {
            QCoreApplication::processEvents();
            if (timer.elapsed() > 5000) {
                std::fprintf(stderr, "the window does not change\n");
                std::exit(EXIT_FAILURE);
            }
        }
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }

private:
    xcb_connection_t* server_;
};

void print(const char* what, double milliseconds) {
    std::printf("%-66s%20.2f%20s\n", what, milliseconds, "\u2014");
}

} // namespace

int main(int argc, char** argv) {
    if (platform::prepareProcess()) {
        std::fprintf(stderr, "no X server\n");
        return EXIT_FAILURE;
    }
    const QApplication application(argc, argv);
    const auto system = platform::makePlatform(platform::makeProgramInstance());
    const platform::CurrentPlatform current(*system);
    Witness witness;
    bar::FormattingBarController controller;

    std::vector<double> times;
    constexpr int count = 200;
    for (int index = 0; index < count; ++index) {
        QElapsedTimer timer;
        timer.start();
        controller.show({300.0 + index, 400, 60, 20});
        times.push_back(witness.waitFor(XCB_MAP_NOTIFY, timer));
        controller.hide();
        timer.restart();
        witness.waitFor(XCB_UNMAP_NOTIFY, timer);
    }
    const double first = times.front();
    std::sort(times.begin() + 1, times.end());
    print("show(near:) to mapped, the first time, ms", first);
    print("later, median, ms", times[count / 2]);
    print("later, slowest of 20 in 19, ms", times[count * 19 / 20]);
    return EXIT_SUCCESS;
}
