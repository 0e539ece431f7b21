#pragma once

namespace platform {

/// Looks for newer versions of the program. Main thread only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Starts looking from time to time. Nothing is looked up before.
    virtual void startUpdater() = 0;

    /// Looks now and tells the user what was found.
    virtual void checkForUpdates() = 0;
};

} // namespace platform
