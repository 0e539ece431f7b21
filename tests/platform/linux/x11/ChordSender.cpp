// Posts shortcuts until it is killed, or posts one and kills itself in the same moment.

#include "platform/linux/x11/XTestKeyboardEvents.h"
#include "platform/linux/x11/XcbConnection.h"
#include "platform/qt/QtRunLoop.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <string_view>
#include <sys/prctl.h>

int main(int argc, char** argv) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const QCoreApplication application(argc, argv);
    const auto connection = platform::XcbConnection::open();
    if (!connection || argc != 2) {
        return 1;
    }
    platform::QtRunLoop runLoop;
    platform::OwnKeyStrokes strokes;
    platform::XTestKeyboardEvents keyboard(*connection, runLoop, strokes);
    const bool once = std::string_view(argv[1]) == "once";

    // Whoever started this program sees by the window whether the server has let go of it.
    const xcb_window_t window = xcb_generate_id(connection->get());
    xcb_create_window(connection->get(), XCB_COPY_FROM_PARENT, window, connection->root(), 0, 0, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_flush(connection->get());
    std::printf("%u\n", window);
    std::fflush(stdout);

    const auto flags = platform::modifierFlags::mask;
    for (;;) {
        const auto down = keyboard.createKeyEvent(nullptr, 11, platform::KeyDirection::Down);
        const auto up = keyboard.createKeyEvent(nullptr, 11, platform::KeyDirection::Up);
        down->setFlags(flags);
        keyboard.post(*down, platform::EventTap::Hid);
        keyboard.post(*up, platform::EventTap::Hid);
        if (once) {
            std::raise(SIGKILL);
        }
    }
}
