#include "platform/appcast/AppcastUpdater.h"

#include "core/Log.h"
#include "platform/appcast/ReleaseNotes.h"

#include <utility>

namespace platform {

namespace {

constexpr std::chrono::hours betweenLooks{24};
/// How often it is asked whether a day has gone by: a computer that sleeps does not count hours,
/// and a look that failed is tried again.
constexpr Seconds betweenQuestions = std::chrono::hours(1);

} // namespace

AppcastUpdater::AppcastUpdater(AppcastConfiguration configuration, RunLoop& runLoop,
                               FeedTransport& transport, Workspace& workspace,
                               UserNotifications& notifications)
    : configuration_(std::move(configuration))
    , runLoop_(runLoop)
    , transport_(transport)
    , workspace_(workspace)
    , notifications_(notifications)
    , record_(configuration_.recordPath) {}

core::Registration AppcastUpdater::setPresenter(UpdatePresenter& presenter) {
    *presenter_ = &presenter;
    return core::Registration([presented = std::weak_ptr(presenter_)] {
        if (const auto place = presented.lock()) {
            *place = nullptr;
        }
    });
}

void AppcastUpdater::startUpdater() {
    if (configuration_.address.isEmpty() || hourly_) {
        return;
    }
    hourly_ =
        runLoop_.scheduleRepeating(betweenQuestions, RunLoopMode::Common, [this] { lookIfDue(); });
    lookIfDue();
}

void AppcastUpdater::lookIfDue() {
    const QDateTime now = configuration_.now();
    const auto& last = record_.lastCheck();
    // A clock that was set back must not put the next look off.
    const bool isRecent =
        last && *last <= now && last->secsTo(now) < std::chrono::seconds(betweenLooks).count();
    if (!isRecent && !occasion_) {
        occasion_ = Occasion::Daily;
        look();
    }
}

void AppcastUpdater::checkForUpdates() {
    if (configuration_.address.isEmpty()) {
        present(UpdatesComeWithPackages{}, [](UpdateChoice) {});
        return;
    }
    const bool isLooking = occasion_.has_value();
    occasion_ = Occasion::Asked;
    notification_.reset();
    present(CheckingForUpdates{}, [this](UpdateChoice) {
        occasion_.reset();
        download_.reset();
    });
    if (!isLooking) {
        look();
    }
}

void AppcastUpdater::look() {
    download_ = transport_.fetch(QUrl(configuration_.address, QUrl::StrictMode),
                                 [this](const FeedAnswer& answer) { conclude(answer); });
}

void AppcastUpdater::conclude(const FeedAnswer& answer) {
    const bool wasAsked = std::exchange(occasion_, std::nullopt) == Occasion::Asked;
    const auto ended = std::move(download_);
    auto reading = std::holds_alternative<QByteArray>(answer)
                       ? readAppcast(std::get<QByteArray>(answer), configuration_.audience)
                       : std::get<AppcastError>(answer);
    if (const auto* error = std::get_if<AppcastError>(&reading)) {
        if (wasAsked) {
            present(UpdateCheckFailed{error->reason}, [](UpdateChoice) {});
        } else {
            core::log(QStringLiteral("the update feed was not read: %1").arg(error->reason));
        }
        return;
    }
    const QDateTime now = configuration_.now();
    record_.setLastCheck(now);
    const auto& installation = configuration_.installation;
    const auto& items = std::get<std::vector<AppcastItem>>(reading);
    if (wasAsked) {
        if (const AppcastItem* item = newestUpdate(items, installation, std::nullopt)) {
            presentUpdate(*item);
        } else {
            present(ProgramIsUpToDate{installation.version.marketing}, [](UpdateChoice) {});
        }
    } else if (const AppcastItem* item =
                   newestUpdate(items, installation, RolloutMoment{now, record_.rolloutGroup()})) {
        const auto& skipped = record_.skipped();
        if (isCritical(*item, installation.version) || !skipped ||
            compareVersions(item->version, *skipped) != 0) {
            notify(*item);
        }
    }
}

void AppcastUpdater::present(const UpdateAnswer& answer, std::function<void(UpdateChoice)> choose) {
    if (*presenter_ != nullptr) {
        (*presenter_)->present(answer, std::move(choose));
    }
}

void AppcastUpdater::presentUpdate(const AppcastItem& item) {
    const auto& installed = configuration_.installation.version;
    const bool isOtherBuild = compareVersions(item.version.marketing, installed.marketing) == 0;
    const auto shown = [isOtherBuild](const ProgramVersion& version) {
        return isOtherBuild ? QStringLiteral("%1 (%2)").arg(version.marketing, version.build)
                            : version.marketing;
    };
    present(
        UpdateAvailable{
            .version = shown(item.version),
            .installedVersion = shown(installed),
            .isCritical = isCritical(item, installed),
            .notes = releaseNotesText(item.notes, item.notesFormat),
            .hasNotesPage = !item.releaseNotesPage.isEmpty(),
            .hasDownloadPage = !item.page.isEmpty(),
        },
        [this, version = item.version, page = item.page,
         notes = item.releaseNotesPage](UpdateChoice choice) {
            switch (choice) {
            case UpdateChoice::OpenDownloadPage:
                open(page);
                break;
            case UpdateChoice::OpenReleaseNotes:
                open(notes);
                break;
            case UpdateChoice::SkipVersion:
                record_.skip(version);
                break;
            case UpdateChoice::Dismiss:
                break;
            }
        });
}

void AppcastUpdater::notify(const AppcastItem& item) {
    const QString version = item.version.marketing;
    core::log(QStringLiteral("version %1 is available").arg(version));
    notification_ = notifications_.show(
        {QStringLiteral("Corvane Quillet %1 is available").arg(version),
         QStringLiteral("“Auf Updates prüfen …” in the menu tells what is new."),
         QStringLiteral("Show")},
        [this, item] {
            notification_.reset();
            presentUpdate(item);
        });
}

void AppcastUpdater::open(const QUrl& page) {
    if (!workspace_.openUrl(page)) {
        core::log(u"no program on this desktop opens web pages");
    }
}

} // namespace platform
