#pragma once

#include "core/Observers.h"
#include "platform/RunLoop.h"
#include "platform/linux/freedesktop/DesktopEntryTable.h"

#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace platform {

/// Keeps the table of installed applications. It is read in the background, at first use and
/// whenever a folder changed since; nobody on the main thread waits for it.
class DesktopEntryIndex {
public:
    using Table = std::shared_ptr<const DesktopEntryTable>;

    /// `folders` with the one that counts most first.
    DesktopEntryIndex(RunLoop& runLoop, QStringList folders, QStringList languages);
    ~DesktopEntryIndex();

    /// What is known; null until the folders were read for the first time. Main thread.
    Table current();

    /// What is known; where nothing is known yet, reads the folders first, which takes
    /// its time. Any thread.
    Table wait();

    /// Calls `handler` on the main thread when current() has something new to answer.
    [[nodiscard]] core::Registration addChangeHandler(std::function<void()> handler);

private:
    /// When each folder last changed, its subfolders not counted; empty for one that is missing.
    using Stamps = std::vector<std::optional<std::filesystem::file_time_type>>;

    static Stamps stamps(const QStringList& folders);
    Table known();
    void startReading(Stamps stamps);

    RunLoop& runLoop_;
    const QStringList folders_;
    const QStringList languages_;
    core::Observers<> changed_;
    Stamps stamps_;
    bool reading_ = false;
    std::mutex mutex_;
    Table table_;
    /// Tells background work that ends later whether this object still exists.
    std::shared_ptr<DesktopEntryIndex*> self_;
};

} // namespace platform
