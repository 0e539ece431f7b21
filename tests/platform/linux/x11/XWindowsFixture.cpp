#include "XWindowsFixture.h"

#include <QFile>

namespace desktop {

XWindow::XWindow(platform::XcbDisplay& display, const Looks& looks)
    : display_(display)
    , window_(xcb_generate_id(display.get())) {
    const auto& frame = looks.frame;
    xcb_create_window(display.get(), XCB_COPY_FROM_PARENT, window_, display.root(),
                      static_cast<std::int16_t>(frame.x), static_cast<std::int16_t>(frame.y),
                      static_cast<std::uint16_t>(frame.width),
                      static_cast<std::uint16_t>(frame.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto say = [&](const char* property, xcb_atom_t type,
                         const std::vector<std::uint32_t>& values) {
        setNumbers(display, window_, property, type, values);
    };
    if (looks.process != 0) {
        say("_NET_WM_PID", XCB_ATOM_CARDINAL, {static_cast<std::uint32_t>(looks.process)});
    }
    if (!looks.className.empty()) {
        setClass(looks.className);
    }
    say("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {display.atom(looks.type.c_str())});
    if (looks.parent != XCB_WINDOW_NONE) {
        say("WM_TRANSIENT_FOR", XCB_ATOM_WINDOW, {looks.parent});
    }
    // The user's own place and size: the window manager leaves them alone.
    std::vector<std::uint32_t> hints(18);
    hints[0] = 1U | 2U;
    say("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, hints);
    xcb_map_window(display.get(), window_);
    settle(display);
}

XWindow::~XWindow() {
    xcb_destroy_window(display_.get(), window_);
    settle(display_);
}

void XWindow::setClass(const std::string& name) {
    const std::string value = "instance" + std::string(1, '\0') + name + std::string(1, '\0');
    xcb_change_property(display_.get(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(value.size()), value.data());
    xcb_flush(display_.get());
}

void XWindow::focus() {
    xcb_set_input_focus(display_.get(), XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
    settle(display_);
}

void XWindow::hide() {
    xcb_unmap_window(display_.get(), window_);
    settle(display_);
}

XWindowsTest::XWindowsTest() {
    // No window gets the number of an earlier test's one: what the window manager still does to a
    // window that is gone would happen to it.
    static int numbersUsed = 0;
    constexpr int numbersPerTest = 100;
    for (int i = 0; i < numbersUsed; ++i) {
        xcb_generate_id(applications->get());
    }
    numbersUsed += numbersPerTest;

    QFile file(folder.filePath(QStringLiteral("org.example.Notes.desktop")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Desktop Entry]\nType=Application\nName=Notes\nIcon=notes\n");
    file.close();
    // Before the first answer the index has to be read.
    index.current();
    runLoop.finishBackgroundWork();
}

platform::ProcessIdentifier XWindowsTest::frontmostProcess() {
    const auto application = workspace.frontmostApplication();
    return application ? application->processIdentifier : -1;
}

std::string XWindowsTest::frontmostIdentifier() {
    const auto application = workspace.frontmostApplication();
    return application
               ? application->bundleIdentifier.value_or(QStringLiteral("none")).toStdString()
               : "nobody";
}

bool XWindowsTest::waitForFrontmost(platform::ProcessIdentifier process) {
    return eventually([&] { return frontmostProcess() == process; });
}

bool XWindowsTest::waitForActive(const XWindow& window) {
    return eventually([&] { return windows.activeWindow().current() == window.id(); });
}

void XWindowsTest::activate(platform::ProcessIdentifier process) {
    platform::RunningApplication application;
    application.processIdentifier = process;
    workspace.activate(application);
}

} // namespace desktop
