#include "platform/linux/x11/EwmhWorkspace.h"

#include "platform/linux/freedesktop/AccessibilitySettings.h"
#include "platform/linux/x11/WindowApplications.h"
#include "platform/linux/x11/WindowManager.h"

#include <QDesktopServices>

#include <algorithm>
#include <utility>

namespace platform {

EwmhWorkspace::EwmhWorkspace(EwmhWindows& windows, DesktopEntryIndex& index, QString ownIdentifier)
    : windows_(windows)
    , index_(index)
    , ownIdentifier_(std::move(ownIdentifier)) {
    propertyChanges_ =
        windows_.activeWindow().addPropertyHandler([this](xcb_window_t, xcb_atom_t property) {
            if (concernsApplication(windows_.connection(), property)) {
                identifiedActivation_.reset();
            }
        });
    indexChanges_ = index_.addChangeHandler([this] { identifiedActivation_.reset(); });
}

std::optional<RunningApplication> EwmhWorkspace::frontmostApplication() {
    const auto window = windows_.activeWindow().current();
    if (!window) {
        return std::nullopt;
    }
    if (identifiedActivation_ != windows_.activeWindow().activations()) {
        const auto table = index_.current();
        if (!table) {
            // Known in a moment: until then nobody may take a window class for an identifier.
            return std::nullopt;
        }
        identified_ = WindowApplications(windows_.connection(), *table, ownIdentifier_)
                          .applicationOf(*window);
        identifiedActivation_ = windows_.activeWindow().activations();
    }
    return identified_;
}

std::vector<RunningApplication> EwmhWorkspace::runningApplications() {
    // A connection of its own: the program's serves the main thread alone.
    const auto display = XcbDisplay::connect();
    if (!display) {
        return {};
    }
    const auto table = index_.wait();
    return WindowApplications(*display, *table, ownIdentifier_).all();
}

void EwmhWorkspace::activate(const RunningApplication& application) {
    keyTarget_.set(application.processIdentifier);
    if (const auto window = windowOf(application.processIdentifier)) {
        activateWindow(*window);
    }
}

std::optional<xcb_window_t> EwmhWorkspace::windowOf(ProcessIdentifier process) {
    const auto& properties = windows_.properties();
    const auto all = properties.windows(windows_.connection().root(), "_NET_CLIENT_LIST_STACKING");
    const auto last = windows_.activeWindow().lastOf(process);
    // A window that was put away, but not destroyed, is no longer in the list.
    if (last && (all.empty() || std::find(all.begin(), all.end(), *last) != all.end())) {
        return last;
    }
    // From the uppermost down.
    const auto found = std::find_if(all.rbegin(), all.rend(), [&](xcb_window_t window) {
        return properties.process(window) == process;
    });
    return found == all.rend() ? std::nullopt : std::optional(*found);
}

void EwmhWorkspace::activateWindow(xcb_window_t window) {
    auto& connection = windows_.connection();
    const auto time = connection.serverTime();
    if (windows_.activeWindow().hasWindowManager()) {
        requestActivation(connection, connection.get(), window, time);
    } else {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(connection.get(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        xcb_set_input_focus(connection.get(), XCB_INPUT_FOCUS_PARENT, window, time);
        xcb_flush(connection.get());
    }
}

bool EwmhWorkspace::openUrl(const QUrl& url) {
    if (url.scheme() == u"x-apple.systempreferences") {
        const auto table = index_.wait();
        const auto* settings = accessibilitySettings(*table, currentDesktops());
        return settings != nullptr && startDetached(*settings);
    }
    if (url.scheme() == u"http" || url.scheme() == u"https") {
        return QDesktopServices::openUrl(url);
    }
    return false;
}

} // namespace platform
