#pragma once

#include "core/Registration.h"
#include "platform/UpdatePresenter.h"

namespace platform {

/// Looks for newer versions of the program. Main thread only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Starts looking from time to time. Nothing is looked up before.
    virtual void startUpdater() = 0;

    /// Looks now and tells the user what was found.
    virtual void checkForUpdates() = 0;

    /// Where an updater without windows of its own shows what it has found, as long as the
    /// registration lives. One that brings its windows along needs no presenter.
    virtual core::Registration setPresenter(UpdatePresenter&) { return {}; }
};

} // namespace platform
