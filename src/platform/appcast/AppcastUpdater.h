#pragma once

#include "platform/RunLoop.h"
#include "platform/Updater.h"
#include "platform/UserNotifications.h"
#include "platform/Workspace.h"
#include "platform/appcast/AppcastConfiguration.h"
#include "platform/appcast/FeedTransport.h"
#include "platform/appcast/UpdateRecord.h"

#include <memory>

namespace platform {

/// Learns of newer versions from an appcast: once a day by itself, telling the user by a
/// notification alone, and whenever the user asks. Downloads and runs nothing; the user's browser
/// shows where a newer version is to be had.
class AppcastUpdater final : public Updater {
public:
    /// All but the configuration must outlive the updater.
    AppcastUpdater(AppcastConfiguration configuration, RunLoop& runLoop, FeedTransport& transport,
                   Workspace& workspace, UserNotifications& notifications);

    void startUpdater() override;
    void checkForUpdates() override;
    core::Registration setPresenter(UpdatePresenter& presenter) override;

private:
    enum class Occasion { Daily, Asked };

    void lookIfDue();
    void look();
    void conclude(const FeedAnswer& answer);
    void present(const UpdateAnswer& answer, std::function<void(UpdateChoice)> choose);
    void presentUpdate(const AppcastItem& item);
    void notify(const AppcastItem& item);
    void open(const QUrl& page);

    AppcastConfiguration configuration_;
    RunLoop& runLoop_;
    FeedTransport& transport_;
    Workspace& workspace_;
    UserNotifications& notifications_;
    UpdateRecord record_;
    /// Null without one. A presenter's registration may outlive the updater.
    std::shared_ptr<UpdatePresenter*> presenter_ = std::make_shared<UpdatePresenter*>(nullptr);
    /// What the look that is going on, if any, is for.
    std::optional<Occasion> occasion_;
    core::Registration download_;
    core::Registration hourly_;
    core::Registration notification_;
};

} // namespace platform
