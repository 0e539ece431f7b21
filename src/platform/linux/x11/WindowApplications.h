#pragma once

#include "platform/RunningApplication.h"
#include "platform/linux/freedesktop/ApplicationIdentity.h"
#include "platform/linux/freedesktop/DesktopEntryTable.h"
#include "platform/linux/x11/WindowProperties.h"

#include <vector>

namespace platform {

/// Tells to which applications windows belong. Belongs to the thread of its display.
class WindowApplications {
public:
    /// `ownIdentifier` is what this process's own windows answer with.
    WindowApplications(XcbDisplay& display, const DesktopEntryTable& table, QString ownIdentifier);

    /// Never fails: a window that says nothing of itself has an application without identifier,
    /// and one that names no process the process 0.
    RunningApplication applicationOf(xcb_window_t window) const;

    /// The applications with windows, in the order in which their first windows were opened. Those
    /// whose windows are all kept off the task bar, and this process, are accessories.
    std::vector<RunningApplication> all() const;

private:
    ApplicationClues cluesOf(xcb_window_t window, ProcessIdentifier process) const;
    bool isOrdinary(xcb_window_t window) const;

    XcbDisplay& display_;
    WindowProperties properties_;
    const DesktopEntryTable& table_;
    const QString ownIdentifier_;
};

/// Whether the property of that name tells something of a window's application.
bool concernsApplication(XcbDisplay& display, xcb_atom_t property);

} // namespace platform
