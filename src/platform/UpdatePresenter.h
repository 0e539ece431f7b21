#pragma once

#include <QString>

#include <functional>
#include <variant>

namespace platform {

struct CheckingForUpdates {};

struct ProgramIsUpToDate {
    QString installedVersion;
};

/// A newer version. Every text is plain text.
struct UpdateAvailable {
    QString version = {};
    QString installedVersion = {};
    bool isCritical = false;
    /// Empty when the feed tells nothing.
    QString notes = {};
    bool hasNotesPage = false;
    bool hasDownloadPage = false;
};

struct UpdateCheckFailed {
    /// One line of English.
    QString reason;
};

/// This build has no feed to look at: newer versions come as the program itself came.
struct UpdatesComeWithPackages {};

using UpdateAnswer = std::variant<CheckingForUpdates, ProgramIsUpToDate, UpdateAvailable,
                                  UpdateCheckFailed, UpdatesComeWithPackages>;

enum class UpdateChoice { OpenDownloadPage, OpenReleaseNotes, SkipVersion, Dismiss };

/// Shows the user what an updater without windows of its own has found.
class UpdatePresenter {
public:
    virtual ~UpdatePresenter() = default;

    /// Shows an answer in place of the one before, in front of everything and with the keyboard;
    /// one that was awaited leaves the keyboard where it is by now. `choose` is told what the user
    /// does about it; every choice but to read the notes ends it.
    virtual void present(const UpdateAnswer& answer, std::function<void(UpdateChoice)> choose) = 0;
};

} // namespace platform
