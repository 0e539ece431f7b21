#include "platform/linux/x11/WindowApplications.h"

#include "platform/linux/freedesktop/RunningProcess.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

namespace {

constexpr std::array clueProperties{"_GTK_APPLICATION_ID", "_KDE_NET_WM_DESKTOP_FILE",
                                    "_BAMF_DESKTOP_FILE"};

/// Dialogs of dialogs are followed no further.
constexpr int deepestDialog = 4;

template <typename Range, typename Value>
bool contains(const Range& range, const Value& value) {
    return std::find(range.begin(), range.end(), value) != range.end();
}

} // namespace

bool concernsApplication(XcbDisplay& display, xcb_atom_t property) {
    return property == XCB_ATOM_WM_CLASS || property == display.atom("_NET_WM_PID") ||
           std::any_of(clueProperties.begin(), clueProperties.end(),
                       [&](const char* name) { return property == display.atom(name); });
}

WindowApplications::WindowApplications(XcbDisplay& display, const DesktopEntryTable& table,
                                       QString ownIdentifier)
    : display_(display)
    , properties_(display)
    , table_(table)
    , ownIdentifier_(std::move(ownIdentifier)) {}

ApplicationClues WindowApplications::cluesOf(xcb_window_t window, ProcessIdentifier process) const {
    const auto clue = [&](const char* property) {
        return properties_.text(window, property).value_or(QString());
    };
    ApplicationClues clues;
    clues.gtkApplicationId = clue(clueProperties[0]);
    clues.kdeDesktopFile = clue(clueProperties[1]);
    clues.bamfDesktopFile = clue(clueProperties[2]);
    if (const auto names = properties_.windowClass(window)) {
        clues.windowClass = names->name;
        clues.windowInstance = names->instance;
    }
    if (process != 0) {
        auto running = RunningProcess::read(process);
        clues.programs = std::move(running.programs);
        clues.controlGroup = std::move(running.controlGroup);
    }
    return clues;
}

RunningApplication WindowApplications::applicationOf(xcb_window_t window) const {
    RunningApplication application;
    application.processIdentifier = properties_.process(window).value_or(0);
    if (application.processIdentifier == QCoreApplication::applicationPid()) {
        application.bundleIdentifier = ownIdentifier_;
        application.localizedName = QCoreApplication::applicationName();
        application.activationPolicy = ActivationPolicy::Accessory;
        return application;
    }
    const auto clues = cluesOf(window, application.processIdentifier);
    const auto* entry = findApplication(clues, table_);
    // A dialog may have a class of its own; then it is what its parent is.
    auto parent = properties_.singleWindow(window, "WM_TRANSIENT_FOR");
    for (int depth = 0; entry == nullptr && parent && depth < deepestDialog; ++depth) {
        if (properties_.process(*parent).value_or(0) == application.processIdentifier) {
            entry = findApplication(cluesOf(*parent, application.processIdentifier), table_);
        }
        parent = properties_.singleWindow(*parent, "WM_TRANSIENT_FOR");
    }
    application.bundleIdentifier = applicationIdentifier(clues, entry);
    application.localizedName = entry != nullptr && !entry->name.isEmpty()
                                    ? std::optional(entry->name)
                                    : application.bundleIdentifier;
    if (entry != nullptr && !entry->icon.isEmpty()) {
        application.icon = IconReference{entry->icon};
    }
    return application;
}

bool WindowApplications::isOrdinary(xcb_window_t window) const {
    if (contains(properties_.atoms(window, "_NET_WM_STATE"),
                 display_.atom("_NET_WM_STATE_SKIP_TASKBAR"))) {
        return false;
    }
    const auto types = properties_.atoms(window, "_NET_WM_WINDOW_TYPE");
    if (types.empty()) {
        return !properties_.singleWindow(window, "WM_TRANSIENT_FOR");
    }
    return contains(types, display_.atom("_NET_WM_WINDOW_TYPE_NORMAL"));
}

std::vector<RunningApplication> WindowApplications::all() const {
    std::vector<RunningApplication> result;
    for (const auto window : properties_.windows(display_.root(), "_NET_CLIENT_LIST")) {
        auto application = applicationOf(window);
        const bool ordinary =
            application.activationPolicy == ActivationPolicy::Regular && isOrdinary(window);
        application.activationPolicy =
            ordinary ? ActivationPolicy::Regular : ActivationPolicy::Accessory;
        // Windows without a process cannot be told apart by it.
        const auto known = std::find_if(result.begin(), result.end(), [&](const auto& other) {
            return other == application && other.bundleIdentifier == application.bundleIdentifier;
        });
        if (known == result.end()) {
            result.push_back(std::move(application));
        } else if (ordinary) {
            known->activationPolicy = ActivationPolicy::Regular;
        }
    }
    return result;
}

} // namespace platform
