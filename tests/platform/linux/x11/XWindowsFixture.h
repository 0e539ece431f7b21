#pragma once

#include "XUser.h"
#include "fakes/Eventually.h"
#include "fakes/VirtualRunLoop.h"
#include "platform/linux/x11/EwmhWorkspace.h"
#include "platform/linux/x11/X11Screens.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace desktop {

using fakes::eventually;

/// A window of some other application, which says of itself what a test wants.
class XWindow {
public:
    struct Looks {
        platform::PixelRect frame{100, 100, 200, 100};
        platform::ProcessIdentifier process = 0;
        std::string className = {};
        std::string type = "_NET_WM_WINDOW_TYPE_NORMAL";
        xcb_window_t parent = XCB_WINDOW_NONE;
    };

    XWindow(platform::XcbDisplay& display, const Looks& looks);
    ~XWindow();
    XWindow(const XWindow&) = delete;
    XWindow& operator=(const XWindow&) = delete;

    xcb_window_t id() const { return window_; }
    void setClass(const std::string& name);
    void focus();
    void hide();

private:
    platform::XcbDisplay& display_;
    xcb_window_t window_;
};

/// The program's view of the windows of two applications, 1001 (which is installed) and 1002.
class XWindowsTest : public testing::Test {
protected:
    XWindowsTest();

    platform::ProcessIdentifier frontmostProcess();
    std::string frontmostIdentifier();
    bool waitForFrontmost(platform::ProcessIdentifier process);
    bool waitForActive(const XWindow& window);
    void activate(platform::ProcessIdentifier process);

    std::unique_ptr<XWindow> installed(platform::PixelRect frame = {100, 100, 200, 100}) {
        return window(frame, installedProcess, "Notes");
    }
    std::unique_ptr<XWindow> unknown(platform::PixelRect frame = {400, 300, 200, 100}) {
        return window(frame, unknownProcess, "Terminal");
    }
    std::unique_ptr<XWindow> window(platform::PixelRect frame, platform::ProcessIdentifier process,
                                    const char* className) {
        const XWindow::Looks looks{.frame = frame, .process = process, .className = className};
        return std::make_unique<XWindow>(*applications, looks);
    }

    static constexpr platform::ProcessIdentifier installedProcess = 4000001;
    static constexpr platform::ProcessIdentifier unknownProcess = 4000002;

    XUser user;
    /// Other programs wait for a busy server longer than this one does.
    std::unique_ptr<platform::XcbDisplay> applications =
        platform::XcbDisplay::connect(std::chrono::seconds(10));
    QTemporaryDir folder;
    fakes::VirtualRunLoop runLoop;
    std::shared_ptr<platform::XcbConnection> connection = platform::XcbConnection::open();
    platform::EwmhWindows windows{connection};
    platform::DesktopEntryIndex index{runLoop, {folder.path()}, {}};
    platform::EwmhWorkspace workspace{windows, index, QStringLiteral("com.corvane.Quillet")};
    platform::X11Screens screens{windows};
};

} // namespace desktop
