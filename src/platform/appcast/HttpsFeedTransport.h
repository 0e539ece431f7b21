#pragma once

#include "platform/RunLoop.h"
#include "platform/appcast/FeedTransport.h"

namespace platform {

/// Reads feeds over HTTPS alone, redirects included, with the certificate always checked. Gives up
/// after a time limit for everything together, and on a feed that is too large. Sends nothing about
/// the user or the system but the program's name.
class HttpsFeedTransport final : public FeedTransport {
public:
    struct Limits {
        Seconds time{30};
        qsizetype bytes = 2 * 1024 * 1024;
    };

    explicit HttpsFeedTransport(RunLoop& runLoop)
        : HttpsFeedTransport(runLoop, Limits{}) {}
    HttpsFeedTransport(RunLoop& runLoop, Limits limits)
        : runLoop_(runLoop)
        , limits_(limits) {}

    core::Registration fetch(const QUrl& address,
                             std::function<void(FeedAnswer)> answered) override;

private:
    RunLoop& runLoop_;
    Limits limits_;
};

} // namespace platform
